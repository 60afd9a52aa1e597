#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/Message.h"
#include "core/SpeciesGroup.h"
#include "materials/Sizes.h"

namespace kordavan {

/// Values and options of the user's own, as entered; those of an SCL product are among them.
struct CustomEntry {
    std::string Fb;      // psi
    std::string Fv;      // psi
    std::string E;       // millions of psi
    std::string FcPerp;  // psi
    bool Wid2x = false;  // breadth family, at most one
    bool Wid4x = false;
    bool Wid6x = false;
    bool WidGLB = false;
    bool WidGLBHDR = false;
    bool SPG = false;              // glulams of Southern Pine laminations
    bool CustomIngradeSP = false;  // Southern Pine values
    bool MSRCheckbox = false;      // machine stress rated lumber
    bool MELCheckbox = false;      // machine evaluated lumber
    bool Roundoption = false;
    std::string Diam;        // in.
    std::string Exponent{};  // of the size factor of an SCL product of the user's own

    bool operator==(const CustomEntry&) const = default;
};

/// The member to test, as entered.
struct MemberEntry {
    std::string BreadthText;
    std::string DepthText;
    std::string SpeciesText;
    CustomEntry Custom;
    std::size_t Product = 0;  // of the SCL products
    std::string ShapeName{};  // of a steel member, which has none of the others
};

/// A member whose texts are known sizes.
struct MemberCandidate {
    std::string BreadthText;
    std::string DepthText;
    std::string SpeciesText;
    SizeFamily Family = SizeFamily::Listed;
    kordavan::BreadthKey BreadthKey = BreadthKey::TwoBy;
    bool Round = false;
    double B = 0;                 // net, in.
    double D = 0;                 // net, in.
    double NextSmallerDepth = 0;  // net, in.; 0 where there is none
    std::string_view NextSmallerDepthText;
    std::string_view NextLargerDepthText;
    std::size_t Product = 0;  // of composite lumber
};

/// The family of sizes that a member is chosen from: by its group, or by the options of the user's own
/// values.
SizeFamily FamilyOf(const MemberEntry& entry, SpeciesGroup group);

/// Looks up the texts of a member: its breadth, then its species, then its depth. A text that is not written
/// exactly as the catalogue has it is refused with the formats that are. Composite lumber bears the name of
/// its product.
Outcome IdentifyMember(const MemberEntry& entry, SpeciesGroup group, UserPort& user,
                       MemberCandidate& candidate);

}  // namespace kordavan
