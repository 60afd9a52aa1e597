#pragma once

#include <string_view>

#include "batch/AnswerWriter.h"
#include "design/QuickPicks.h"
#include "design/Session.h"

namespace kordavan {

/// Whether the candidate's part of the analysis is there.
enum class AnalysisPart { AppliedLoads, WithCandidate };

void WriteCriteria(const Session& session, AnswerWriter& answer);
void WriteAnalysis(const AnalysisResult& analysis, AnalysisPart part, AnswerWriter& answer);
void WriteStations(const StationTable& stations, AnswerWriter& answer);

/// The size of a member; one of steel has no breadth key.
void WriteCandidate(const MemberCandidate& candidate, std::string_view breadthKey, AnswerWriter& answer);

/// Figures and statuses of a test.
void WriteTest(const MemberTestResult& result, AnswerWriter& answer);

/// Member, values, factors, stability, adjusted values and verdict of the member tested last.
void WriteMemberTest(const MemberTest& member, AnswerWriter& answer);

/// Every text of the test report.
void WriteReport(const Session& session, AnswerWriter& answer);

/// The quick picks that hold a depth, in their order.
void WriteQuickPicks(const QuickPicks& picks, AnswerWriter& answer);

/// The texts of the wood selection screen.
void WriteSelectionLabels(const SelectionTexts& texts, AnswerWriter& answer);

/// The criteria as they stand after the hips and valleys tool, as numbers.
void WriteHipValley(const Session& session, AnswerWriter& answer);

}  // namespace kordavan
