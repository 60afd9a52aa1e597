#pragma once

#include <string>

namespace kordavan {

/// How the column is made up: one piece, or two to five dimension members side by side.
enum class ColumnType { SolidSawn6x, SolidSawn2xOr4x, NailedBuiltUp, BoltedBuiltUp };

/// Which of the published tables the base values are of.
enum class ColumnValueGroup { DimensionLumber, PostAndTimber, BeamAndStringer };

/// The entries of a column, by the names of their boxes. Plane D1 is the one in which the column bends across
/// its thickness D1, the side that is shared by all plies; D2 is its width.
struct ColumnEntry {
    std::string cReacText;          // axial load, lb
    std::string cHTtext;            // actual height, ft
    std::string cD1text;            // unbraced length in plane D1, ft; "0" when braced throughout
    std::string cD2text;            // the same in plane D2
    std::string cModeText = "1.0";  // Ke; K of a steel column
    std::string cDurText = "1.00";  // Cd
    std::string cFcText;            // base Fc parallel to grain, psi
    std::string cEtext;             // base E, millions of psi
    std::string ColSpeciesCombo;    // species and grade
    bool cWetButton = false;
    bool ColIncised = false;
    bool ResetKf = false;  // face D1 is sheathed: Kf is 1
    ColumnType Type = ColumnType::SolidSawn2xOr4x;
    ColumnValueGroup ValueGroup = ColumnValueGroup::DimensionLumber;

    bool operator==(const ColumnEntry&) const = default;
};

/// A wood column as the calculation reads its entries.
struct ColumnProblem {
    float Reaction = 0;      // axial load P, lb
    float ColumnHeight = 0;  // ft
    float UnbracedD1 = 0;    // ft; 0 = fully braced
    float UnbracedD2 = 0;    // ft
    float BaseFc = 0;        // psi
    float BaseE = 0;         // millions of psi
    float BucklingKe = 0;    // none
    float DurationCd = 0;    // none
    bool WetUse = false;
    bool Incised = false;
    bool D1FullyBraced = false;
    bool StudGrade = false;
    ColumnType Type = ColumnType::SolidSawn2xOr4x;
    ColumnValueGroup ValueGroup = ColumnValueGroup::DimensionLumber;
    std::string SpeciesGrade;

    /// Effective lengths, in.
    double Le1() const { return double{UnbracedD1} * 12.0 * BucklingKe; }
    double Le2() const { return double{UnbracedD2} * 12.0 * BucklingKe; }
};

/// Numbers of the entries; a text that is none reads as 0. Nothing is checked.
ColumnProblem ReadColumnProblem(const ColumnEntry& entry);

constexpr bool IsBuiltUp(ColumnType type)
{
    return type == ColumnType::NailedBuiltUp || type == ColumnType::BoltedBuiltUp;
}

}  // namespace kordavan
