#include "batch/SteelAnswer.h"

#include <array>
#include <string_view>

#include "batch/BeamAnswer.h"
#include "batch/FloatFields.h"

namespace kordavan {

namespace {

using StateField = FloatMember<SteelTestState>;

constexpr std::array LoadFields{
    StateField{"SelfWeight", &SteelTestState::SelfWeight},
    StateField{"MemberWeight", &SteelTestState::MemberWeight},
    StateField{"MaxMoment", &SteelTestState::MaxMoment},
    StateField{"CantileverMoment", &SteelTestState::CantileverMoment},
    StateField{"TotalLoad", &SteelTestState::TotalLoad},
    StateField{"Reaction1", &SteelTestState::Reaction1},
    StateField{"Reaction2", &SteelTestState::Reaction2},
    StateField{"MaxShear", &SteelTestState::MaxShear},
    StateField{"UnbracedLength", &SteelTestState::UnbracedLength},
};

constexpr std::array BendingFields{
    StateField{"ActualS", &SteelTestState::ActualS},
    StateField{"RequiredS", &SteelTestState::RequiredS},
    StateField{"FbAllowed", &SteelTestState::FbAllowed},
};

constexpr std::array ShearFields{
    StateField{"WebArea", &SteelTestState::WebArea},
    StateField{"ShearStress", &SteelTestState::ShearStress},
    StateField{"RequiredWebArea", &SteelTestState::RequiredWebArea},
    StateField{"ActualI", &SteelTestState::ActualI},
};

void WriteState(const SteelTestState& state, AnswerWriter& answer)
{
    answer.BeginObject("steel");
    answer.Field("RowIndex", static_cast<int>(state.RowIndex));
    WriteFields(state, LoadFields, answer);
    answer.Field("LcApplies", state.LcApplies);
    answer.Field("LuApplies", state.LuApplies);
    answer.Field("MaxUnbracedText", std::string_view(state.MaxUnbracedText));
    WriteFields(state, BendingFields, answer);
    answer.Field("Fy", state.Fy);
    answer.Field("FvAllowed", state.FvAllowed);
    WriteFields(state, ShearFields, answer);
    answer.Field("ActualSizeBreadth", state.ActualSizeBreadth);
    answer.Field("ActualSizeDepth", state.ActualSizeDepth);
    answer.Field("BearingR1", state.Bearing.R1);
    answer.Field("BearingR2", state.Bearing.R2);
    answer.EndObject();
}

}  // namespace

void WriteSteelTest(const Session& session, AnswerWriter& answer)
{
    WriteCandidate(session.Member.Candidate, {}, answer);
    WriteState(session.Steel, answer);
    WriteTest(session.Member.Result, answer);
}

void WriteSteelSlots(const SteelSelection& picks, AnswerWriter& answer)
{
    answer.BeginArray("slots");
    for (const SteelSlot& slot : picks.Slots) {
        answer.BeginObject();
        answer.Field("StlPick", slot.StlPick);
        answer.Field("StlDepLab", slot.StlDepLab);
        answer.Field("StlWidLab", slot.StlWidLab);
        answer.Field("UBLlab", std::string_view(slot.UBLlab));
        answer.Field("StlSecPerct", std::string_view(slot.StlSecPerct));
        answer.Field("StlShearPerct", std::string_view(slot.StlShearPerct));
        answer.EndObject();
    }
    answer.EndArray();
}

void WriteSteelLabels(const SteelSelectionTexts& texts, AnswerWriter& answer)
{
    answer.BeginObject("labels");
    answer.Field("Label4", texts.Label4);
    answer.Field("StlFormatLabel", texts.StlFormatLabel);
    answer.Field("Label6", texts.Label6);
    answer.Field("StlMoment", std::string_view(texts.StlMoment));
    answer.Field("StlReac1", std::string_view(texts.StlReac1));
    answer.Field("StlReac2", std::string_view(texts.StlReac2));
    answer.Field("StlStatis", std::string_view(texts.StlStatis));
    answer.Field("StlPanel", std::string_view(texts.StlPanel));
    answer.EndObject();
}

}  // namespace kordavan
