#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kordavan {

/// The wind loads of a stud: A, and B and C that may stand beside it.
inline constexpr std::size_t WindLoadCount = 3;

/// The entries of a wall stud under axial load and wind, by the names of their boxes. Places count from the
/// base of the stud.
struct StudEntry {
    std::string WindStudHt;       // ft
    std::string WindStudSpacing;  // in. on centre
    int BreadthCombo = 0;         // list positions
    int DepthCombo = 0;
    std::string WindStudCombo;      // species and grade
    std::string WindStudFb;         // psi
    std::string WindStudFc;         // psi
    std::string WindStudE;          // millions of psi
    std::string AxialPLFtextbox;    // lb per ft of wall
    std::string AxialPointTextbox;  // lb
    std::string AxialDurTextbox = "1.0";
    std::string DurWindTextbox = "1.6";
    std::array<std::string, WindLoadCount> Wind;  // psf
    std::array<std::string, WindLoadCount> Beg;   // ft
    std::array<std::string, WindLoadCount> End;   // ft
    bool RepWindStud = false;
    bool RepIBCCheck = false;

    bool operator==(const StudEntry&) const = default;
};

/// A wall stud as the calculation reads its entries.
struct StudColumnProblem {
    float StudHeight = 0;   // ft
    float StudSpacing = 0;  // in. on centre
    float Breadth = 0;      // net, in.
    float Depth = 0;        // net, in.
    bool StudGrade = false;
    float BaseFb = 0;                         // psi
    float BaseFc = 0;                         // psi
    float BaseE = 0;                          // millions of psi
    float AxialPLF = 0;                       // lb per ft of wall
    float AxialPoint = 0;                     // lb
    float AxialCd = 0;                        // none
    float WindCd = 0;                         // none
    std::array<float, WindLoadCount> Wind{};  // psf
    std::array<float, WindLoadCount> Beg{};   // ft
    std::array<float, WindLoadCount> End{};   // ft
    bool RepetitiveNDS = false;
    bool RepetitiveIBC = false;
    std::string SpeciesGrade;
};

/// A size as its list offers it.
struct StudSize {
    std::string_view Name;
    float Net;  // in.
};

/// Sizes by list position; a breadth of several pieces stands for studs side by side.
inline constexpr std::array StudBreadths{
    StudSize{"2x", 1.5F},     StudSize{"3x", 2.5F},     StudSize{"4x", 3.5F},
    StudSize{"(2) 2x", 3.0F}, StudSize{"(3) 2x", 4.5F}, StudSize{"(4) 2x", 6.0F},
};
inline constexpr std::array StudDepths{StudSize{"4", 3.5F}, StudSize{"6", 5.5F}, StudSize{"8", 7.25F}};

/// The sizes chosen in the lists; a position that does not exist counts as the first.
const StudSize& StudBreadthOf(const StudEntry& entry);
const StudSize& StudDepthOf(const StudEntry& entry);

/// "A", "B" and "C".
constexpr char WindLetter(std::size_t load)
{
    return static_cast<char>('A' + load);
}

/// Numbers of the entries; a text that is none reads as 0. Nothing is checked.
StudColumnProblem ReadStudProblem(const StudEntry& entry);

}  // namespace kordavan
