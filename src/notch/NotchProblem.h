#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kordavan {

inline constexpr double NotchPi = 3.14159265358979;

/// In the order of their list.
enum class NotchMember { SawnRectangular, SawnRound, Glulam };
enum class NotchType { Tension, Compression, Tapered };

inline constexpr std::array<std::string_view, 3> NotchMemberNames{
    " Solid Sawn, Rectangular", " Solid Sawn, Round (Log)", " Glu-Lam, Rectangular"};
inline constexpr std::array<std::string_view, 3> NotchTypeNames{"Tension Notch", "Compression Notch",
                                                                "Tapered Notch"};

/// A duration of load of the list.
struct NotchDuration {
    std::string_view Name;
    double Cd;
};

inline constexpr std::array NotchDurations{
    NotchDuration{"Normal", 1.0},
    NotchDuration{"Snow", 1.15},
    NotchDuration{"No Snow", 1.25},
    NotchDuration{"Permanent DL", 0.9},
};

/// The entries of a notched member, by the names of their boxes.
struct NotchEntry {
    int MemberListBox = 0;  // list positions
    int NotchListBox = 0;
    int DurListbox = 0;
    std::string MaxVtextbox;     // shear without reductions, lb
    std::string breadthtextbox;  // in.
    std::string depthtextbox;    // in.; the diameter of a log
    std::string Species;         // species and grade
    std::string Fvtextbox;       // psi
    std::string dnTextbox;       // depth that remains at the notch, in.
    std::string eTextbox;        // setback from the support, in.
    std::string rdTextbox;       // depth of the rafter, in.
    std::string rpTextbox;       // roof pitch in 12; above 24 degrees
    std::string tTextbox;        // breadth of the wall, in.
    bool WetUseCheckbox = false;
    bool NoSplitCheckbox = false;

    bool operator==(const NotchEntry&) const = default;
};

/// A notched member as the calculation reads its entries.
struct NotchProblem {
    NotchMember MemberType = NotchMember::SawnRectangular;
    NotchType Notch = NotchType::Tension;
    double MaxV = 0;          // lb
    double Breadth = 0;       // in.; of a log without one its diameter
    double Depth = 0;         // in.
    double BaseFv = 0;        // psi
    double DepthAtNotch = 0;  // dn, in.
    double NotchSetback = 0;  // e, in.
    bool HasSetback = false;  // e is given
    double RafterDepth = 0;   // in.
    double RoofPitch = 0;     // in 12; above 24 degrees
    double WallBreadth = 0;   // in.
    double Cm = 1;            // wet use
    std::int16_t Ch = 1;      // shear: 2 without splits
    double Cd = 1;            // duration of load
    std::int16_t NdsYear = 0;
};

/// Numbers and factors of the entries; a text that is none reads as 0, a list position that does not exist as
/// the first. Nothing is checked.
NotchProblem ReadNotchProblem(const NotchEntry& entry, std::int16_t ndsYear);

/// Whether the list of notches has the position of the entry.
bool HasNotchType(const NotchEntry& entry);

/// A text of blanks alone, or none at all.
bool IsBlankText(std::string_view text);

/// Wet use factor of the shear value by member and, for logs, diameter (NDS Supplement, tables 4A, 4D, 5A).
double NotchWetFactor(NotchMember member, double depth, bool isWet);

/// The angle of a roof in degrees: a pitch up to 24 is a rise in 12, more is the angle itself.
double RoofAngle(double pitch);

}  // namespace kordavan
