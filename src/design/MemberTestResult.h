#pragma once

#include <string_view>

#include "analysis/SectionProps.h"
#include "design/AdjustmentFactors.h"
#include "design/Member.h"
#include "design/Stability.h"
#include "materials/Species.h"

namespace kordavan {

inline constexpr std::string_view StatusOk = "OK";
inline constexpr std::string_view StatusFail = "Fail";

/// Figures and verdict of one member. A check that does not apply has 0 and an empty status.
struct MemberTestResult {
    float SectionReq = 0;  // in3
    float SectionProp = 0;
    float ActualShearStress = 0;  // psi
    float AreaReq = 0;            // in2
    float AreaProp = 0;
    float FvAdj = 0;            // the allowable shear stress of the verdict, psi
    float TotalDeflection = 0;  // in.
    float TotalDeflectionAllowed = 0;
    float LiveDeflection = 0;
    float LiveDeflectionAllowed = 0;
    float OverhangDeflection = 0;
    float OverhangDeflectionAllowed = 0;
    float OverhangLiveDeflection = 0;
    float OverhangLiveDeflectionAllowed = 0;
    float DeadDeflection = 0;
    float CreepFactor = 0;
    float SpanOverDeflection = 0;
    float R1Total = 0;  // lb
    float R2Total = 0;
    float MaxMoment = 0;  // ft-lb
    float OverhangMoment = 0;
    float TotalLoad = 0;              // lb
    bool NextSmallerOk = false;       // the next smaller depth passes every check
    bool NoSplits = false;            // shear passes only if the member is free of splits
    bool IsOverProductLimit = false;  // deflects more than its maker allows
    std::string_view SecStatus;
    std::string_view ShearStatus;
    std::string_view DeflStatus;
    std::string_view LDeflStatus;
    std::string_view OHDeflStatus;
    std::string_view OHLDeflStatus;
    std::string_view Overall;  // empty where a member without splits is asked for
};

/// What the person said of the grading of values of their own.
struct OwnGrading {
    bool SoPine = false;
    bool Mel = false;  // machine evaluated
    bool Msr = false;  // machine stress rated
};

/// All that is known of the member tested last.
struct MemberTest {
    MemberCandidate Candidate;
    DesignValues Values;
    OwnGrading Grading;
    AdjustmentFactors Factors;
    StabilityResult Stability;
    AdjustedValues Adjusted;
    SectionProps Section;
    MemberTestResult Result;
};

}  // namespace kordavan
