#pragma once

#include <gtest/gtest.h>

#include "notch/NotchCheck.h"

namespace kordavan {

inline constexpr NotchMember Sawn = NotchMember::SawnRectangular;
inline constexpr NotchMember Log = NotchMember::SawnRound;
inline constexpr NotchMember Glulam = NotchMember::Glulam;
inline constexpr NotchType Tension = NotchType::Tension;
inline constexpr NotchType Compression = NotchType::Compression;
inline constexpr NotchType Tapered = NotchType::Tapered;

/// All is worked in double.
inline void ExpectFigure(std::optional<double> figure, std::optional<double> expected)
{
    constexpr double exact = 1e-9;
    ASSERT_EQ(figure.has_value(), expected.has_value());
    if (expected) {
        EXPECT_NEAR(*figure, *expected, exact * *expected);
    }
}

/// A 3.5 x 10 in. member cut to 8 in., 2000 lb, Fv 180 psi: An = 28 in^2, dn / d = 0.8.
inline NotchEntry PlainNotch(NotchMember member = NotchMember::SawnRectangular,
                             NotchType notch = NotchType::Tension)
{
    NotchEntry entry;
    entry.MemberListBox = static_cast<int>(member);
    entry.NotchListBox = static_cast<int>(notch);
    entry.MaxVtextbox = "2000";
    entry.breadthtextbox = "3.5";
    entry.depthtextbox = "10";
    entry.Species = "DF-L #2";
    entry.Fvtextbox = "180";
    entry.dnTextbox = "8";
    entry.rdTextbox = "9.25";
    entry.rpTextbox = "12";
    entry.tTextbox = "5.5";
    return entry;
}

inline NotchSession NotchUnder(std::int16_t ndsYear, const NotchEntry& entry = PlainNotch())
{
    NotchSession notch;
    notch.Entry = entry;
    notch.Years.NdsYear = ndsYear;
    return notch;
}

inline NotchResult ResultOf(const NotchEntry& entry, std::int16_t ndsYear)
{
    return WorkOutNotch(ReadNotchProblem(entry, ndsYear));
}

}  // namespace kordavan
