#pragma once

#include <string_view>

#include "core/BeamNumbers.h"
#include "design/Member.h"
#include "materials/Species.h"

namespace kordavan {

struct AdjustmentFactors {
    float Cd = 1;
    float Cr = 1;
    float CmFb = 1;
    float CmFv = 1;
    float CmFcPerp = 1;
    float CmE = 1;
    float Cf = 1;
    float CfSmaller = 1;  // size or volume factor of the next smaller depth
    float CiFb = 1;
    float CiFv = 1;
    float CiE = 1;
    float Cv = 1;
    bool CvGoverns = false;    // bending takes the lesser of Cv and CL, never both
    bool IsComposite = false;  // a size factor below 1 is not combined with CL either
    float CL = 1;
    float CLOverhang = 1;
    float FormFactor = 1;
};

struct AdjustedValues {
    float FbAdj = 0;      // psi
    float FbStar = 0;     // bending with all factors but stability, psi
    float FvAdj = 0;      // psi
    float FcPerpAdj = 0;  // psi
    float EAdj = 0;       // millions of psi
};

/// What a custom member's options mean for its factors.
struct CustomTraits {
    bool OwnSizedValues = false;  // the entered Fb is that of the size
    bool SouthernPine = false;
    bool MachineGraded = false;  // MSR or MEL
    double SclExponent = 0;      // size factor exponent of composite lumber of the user's own
};

CustomTraits TraitsOf(const CustomEntry& custom);

/// One size of a member, with what its factors hang on besides the beam.
struct FactorInput {
    const MemberCandidate& Member;
    CustomTraits Traits;
    NetSize Net;
    std::string_view DepthText;  // nominal
    DesignValues Values;
    float InflectionFt = 0;
    bool SoPineLowered = false;
};

/// Repetitive member factor: 1.15 of lumber, 1.04 of the composite products that have one; 1 without
/// repetitive use. Round members have none.
/// @param product  of composite lumber
float RepetitiveFactor(const BeamNumbers& beam, BreadthKey key, std::size_t product);

/// All factors of one size but those of stability; CfSmaller is the size's own factor until the caller knows
/// better.
AdjustmentFactors ComputeFactors(const BeamNumbers& beam, const FactorInput& input);

/// Reference values with all factors but stability; FbAdj is left at 0.
AdjustedValues AdjustWithoutStability(const DesignValues& values, const AdjustmentFactors& factors);

/// Allowable bending stress, psi: a glulam takes the lesser of stability and volume factor, any other member
/// size and stability together, but for composite lumber deeper than 12 in., which takes the lesser of them.
/// 0 when one of the factors is 0.
float AllowableBending(const DesignValues& values, const AdjustmentFactors& factors);

}  // namespace kordavan
