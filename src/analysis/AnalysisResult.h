#pragma once

namespace kordavan {

/// What one pass of loads (total, or live alone) does to deflection, worked out once from the loads.
struct DeflectionLoads {
    double OnSpan = 0;    // equivalent uniform load on the span, lb in all; self-weight not included
    double TipLift = 0;   // tip lift by loads on the span, times EI, lb-in3
    double TipDrop = 0;   // tip drop by loads on the overhang, times EI, lb-in3
    double SpanLift = 0;  // span lift by loads on the overhang, times EI, lb-in3
};

struct DeflectionPasses {
    DeflectionLoads Total;
    DeflectionLoads Live;
};

/// The entered loads alone, without self-weight. Lives from one calculate action to the next.
struct AppliedLoadResult {
    float PointTotalSum = 0;  // lb
    float PointLiveSum = 0;
    float PartialTotalSum = 0;  // lb
    float PartialLiveSum = 0;
    float TotalAppliedLoad = 0;  // lb
    float TotalAppliedLive = 0;
    float R1Applied = 0;  // reactions, lb; negative means uplift
    float R2Applied = 0;
    float R1Live = 0;
    float R2Live = 0;
    float MaxMomentStation = 0;       // peak of the station table, ft-lb
    float MaxMomentAtFt = 0;          // the station before that peak, ft from R1
    float MaxMomentApplied = 0;       // moment for design, ft-lb
    float InflectionFt = 0;           // last station with negative moment, ft from R1; overhanging beams
    float OverhangFt = 0;             // overhang, up to its farthest load, ft
    float OverhangLoadSum = 0;        // loads on the overhang, lb
    float OverhangMomentApplied = 0;  // their moment at R2, ft-lb
    float IncreasingTotalLoad = 0;    // whole weight of a hip or valley load, lb
    float IncreasingLiveLoad = 0;

    bool HasLiveDeflFlag = false;  // any live load is entered
    DeflectionPasses Deflecting;
};

/// Loads of one candidate: the applied loads with its self-weight.
struct CandidateLoadResult {
    float SelfWeightPlf = 0;
    float SelfWeightTotal = 0;      // lb; one span of several
    float R1Total = 0;              // lb
    float R2Total = 0;              // lb
    float TotalLoadWithSelf = 0;    // lb
    float MaxMomentFtLb = 0;        // span moment, ft-lb
    float OverhangMomentTotal = 0;  // moment at R2 from the overhang, ft-lb
};

/// Why an overhanging beam has no greatest shear: its figures cannot be compared (not a number).
enum class ShearFault { None, NoMaximum, NoReducedMaximum };

struct ShearResult {
    float SectionRequired = 0;    // in3
    float ShearMax = 0;           // lb
    float ShearReduced = 0;       // at the member's depth from the supports, lb
    float ShearStressActual = 0;  // psi
    float AreaRequired = 0;       // in2
    ShearFault Fault = ShearFault::None;
};

/// Deflections in inches, positive downwards; the total ones with creep.
struct DeflectionResult {
    float TotalDeflIn = 0;
    float LiveDeflIn = 0;
    float DeadDeflIn = 0;
    float AllowTotalDeflIn = 0;
    float AllowLiveDeflIn = 0;
    float TotalDeflRatio = 0;  // span over deflection; 0 where there is no deflection
    float LiveDeflRatio = 0;
    float TipDeflIn = 0;  // tip of the overhang
    float TipLiveDeflIn = 0;
    float TipDeadDeflIn = 0;
    float AllowTipDeflIn = 0;
    float AllowTipLiveDeflIn = 0;
    float TipDeflRatio = 0;  // twice the overhang over deflection
    float TipLiveDeflRatio = 0;
    float CreepFactor = 0;
};

/// Everything the analysis knows of a beam and the candidate tested last.
struct AnalysisResult : AppliedLoadResult, CandidateLoadResult, ShearResult, DeflectionResult {};

}  // namespace kordavan
