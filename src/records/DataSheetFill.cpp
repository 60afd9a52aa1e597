#include "records/DataSheetFill.h"

#include <array>
#include <string>
#include <vector>

#include "core/NumberText.h"
#include "design/SteelTexts.h"
#include "design/TestReport.h"
#include "records/DataSheetBlocks.h"
#include "records/DataSheetCaptions.h"

namespace kordavan {

namespace {

std::string SpacingOnCenter(RepetitiveSpacing spacing)
{
    switch (spacing) {
        case RepetitiveSpacing::Ctr12:
            return " @ 12 in oc";
        case RepetitiveSpacing::Ctr16:
            return " @ 16 in oc";
        case RepetitiveSpacing::Ctr19:
            return " @ 19.2 in oc";
        case RepetitiveSpacing::Ctr24:
            return " @ 24 in oc";
        case RepetitiveSpacing::None:
        case RepetitiveSpacing::Ctr0:
            break;
    }
    return {};
}

std::string WoodLine(const Session& session)
{
    const MemberCandidate& member = session.Member.Candidate;
    const std::string size = member.Round ? PlainNumber(member.D) + " in. round"
                                          : member.BreadthText + " " + member.DepthText + " in.";
    const std::string treated = IsIncised(session) ? "PT " : "";
    return treated + member.SpeciesText + "  " + size + SpacingOnCenter(SpacingInForce(session.Problem));
}

std::string SteelLine(const Session& session)
{
    const SteelCriteria& criteria = session.SteelPicks.Criteria;
    std::string line(session.Steel.ShapeName);
    if (IsPlate(criteria.Family)) {
        line += " in., plus 2x wood sistered each side";
    }
    const std::string_view grade = SteelGradeText(criteria);
    line += ", ";
    line += grade.substr(grade.find_first_not_of(' '));
    return line + SpacingOnCenter(SpacingInForce(session.Problem));
}

/// The edition stands behind a comma only where something is before it.
void AddEdition(Edition edition, std::string& line)
{
    if (edition == Edition::None) {
        return;
    }
    line += line.empty() ? "NDS " : ", NDS ";
    line += EditionYear(edition);
}

std::string AttributeLine(const Session& session)
{
    const BeamNumbers& beam = session.Numbers;
    const BeamProblem& problem = session.Problem;
    const OwnGrading& grading = session.Member.Grading;
    const bool isCustom = beam.Group == SpeciesGroup::Custom;
    std::string line;
    const auto add = [&line](bool applies, std::string_view text) {
        if (applies) {
            line += text;
        }
    };
    add(beam.IsContinuous(), ", Equal Multi-Span");
    add(beam.Rep, ", Repetitive Use");
    add(beam.Wet, ", Wet Use");
    add(IsIncised(session), ", Incised");
    add(session.Member.Result.NoSplits, ", No Splits");
    add(isCustom && grading.Mel, ", MEL Lumber");
    add(isCustom && grading.Msr, ", MSR Lumber");
    if (!beam.IsSteel()) {
        AddEdition(beam.Nds, line);
    }
    add(beam.Support == SupportCondition::HipValley, ", Increasing Load");
    add(beam.IsOverhanging(), ", Overhang");
    add(session.Analysis.R1Total < 0, ", Uplift @ R1");
    add(problem.Roofbutton, ", DL adj: " + problem.Pitchtext + ":12 pitch");
    add(session.Unbalanced.Overhang, ", Unbalanced OH LL");
    add(session.Unbalanced.Span, ", Unbalanced Backspan LL");
    return line;
}

}  // namespace

bool IsIncised(const Session& session)
{
    const BreadthKey key = session.Member.Candidate.BreadthKey;
    return session.Numbers.Incised && !session.Numbers.IsSteel() && key != BreadthKey::Glulam &&
           key != BreadthKey::Composite;
}

void FillHeading(const Session& session, CalendarDay today, DataSheet& sheet)
{
    sheet[1] = "Project: " + session.Problem.Proj;
    sheet[2] = "Beam ID: " + session.Problem.ID;
    sheet[3] = "Description: " + session.Problem.Descrip;
    sheet[4] = "Date: " + ShortDate(today);
    sheet[169] = "Prepared by: " + session.Header.Initialbox;
    sheet[132] = session.Header.Heading1;
    sheet.Label133Missing = session.Header.Heading2;
    sheet.ReportNotes = session.NoteClipboard;
}

void FillMemberLines(const Session& session, DataSheet& sheet)
{
    sheet[5] = session.Numbers.IsSteel() ? SteelLine(session) : WoodLine(session);
    sheet[6] = AttributeLine(session);
}

DataSheet FillDataRecord(const Session& session, CalendarDay today, UserPort& user)
{
    DataSheet sheet;
    sheet.IsSteel = session.Numbers.IsSteel();
    FillFixedCaptions(sheet);
    FillHeading(session, today, sheet);
    FillMemberLines(session, sheet);
    FillChecks(session, sheet);
    FillReferenceValues(session, sheet);
    FillFactors(session, user, sheet);
    FillSpansAndReactions(session, sheet);
    FillDeflections(session, sheet);
    FillBearing(session, sheet);
    FillLoads(session, sheet);
    return sheet;
}

}  // namespace kordavan
