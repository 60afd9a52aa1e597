#pragma once

#include <string>

#include "analysis/AnalysisResult.h"
#include "core/BeamNumbers.h"
#include "design/MemberTestResult.h"

namespace kordavan {

/// What the lines of a test report are worked out from.
struct ReportSource {
    const BeamProblem& Problem;
    const BeamNumbers& Beam;
    const AnalysisResult& Analysis;
    const MemberTest& Member;
};

/// Breadth, depth and species of a wood member as shown.
std::string DisplayChoiceText(const MemberCandidate& member);

/// What the values are modified for, and the spacing.
std::string ModifiersText(const ReportSource& source);

/// The offer of a member without splits, where the verdict hangs on it.
std::string NoSplitText(const MemberTestResult& result);

/// The next smaller size, where it passes too.
std::string SmallChoiceText(const ReportSource& source);

/// Dead load deflection with creep, and the camber of a glulam.
std::string DeadDeflectionText(const ReportSource& source);

/// The alert to a member that passes but deflects more than a third of an inch.
std::string LargeDeflectionText(const MemberTestResult& result);

/// The reminder to check an overhanging beam under unbalanced live loads.
std::string UnbalancedText(const BeamNumbers& beam);

/// Allowed and actual deflection as parts of the span; the live line is empty without live deflection.
std::string TotalDeflectionLine(const ReportSource& source);
std::string LiveDeflectionLine(const ReportSource& source);

/// Total and live reactions; a first reaction that is not above 0 is called uplift.
std::string ReactionsLine(const AnalysisResult& analysis);
std::string LiveReactionsLine(const AnalysisResult& analysis);

}  // namespace kordavan
