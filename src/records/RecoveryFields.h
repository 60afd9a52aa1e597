#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "columns/ColumnSession.h"
#include "core/CriteriaFields.h"
#include "core/Message.h"
#include "design/Session.h"
#include "notch/NotchSession.h"

/// What a recovery copy holds of the work at hand, told once for writing and reading. Each record is taken
/// apart into all of its members, so that one which joins it does not compile before it is decided on here.
/// Members that are not handed on are results, which are worked out again, or standing choices, which have a
/// file of their own.
namespace kordavan {

/// A record that an archive fills when it reads and only looks at when it writes.
template <typename Archive, typename Record>
using FieldsOf = std::conditional_t<Archive::IsReading, Record, const Record>;

/// Hands fields to the archive: a name and a value in turn.
template <typename Archive>
void TakeEach(Archive& /*archive*/)
{
}

template <typename Archive, typename Value, typename... Rest>
void TakeEach(Archive& archive, std::string_view name, Value& value, Rest&... rest)
{
    archive.Take(name, value);
    TakeEach(archive, rest...);
}

/// The entries of a beam by the names of their boxes; of a group of options the one that is on is held.
template <typename Archive>
class CriteriaFieldTaker {
public:
    CriteriaFieldTaker(Archive& fieldArchive, FieldsOf<Archive, BeamProblem>& beam)
        : archive(fieldArchive), problem(beam)
    {
    }

    void TakeAll()
    {
        for (const CriteriaField& field : CriteriaFields()) {
            name = field.Name;
            std::visit(*this, field.Target);
        }
    }

    template <typename Value>
    void operator()(Value BeamProblem::*member)
    {
        archive.Take(name, problem.*member);
    }

    template <typename Value>
    void operator()(Value LoadSet::*member)
    {
        archive.Take(name, problem.Loads.*member);
    }

    void operator()(SupportCondition option) { Choose(problem.Support, option); }
    void operator()(RepetitiveSpacing option) { Choose(problem.Spacing, option); }
    void operator()(SteelFamily option) { Choose(problem.Family, option); }
    void operator()(SpanFlag option) { Choose(problem.ThreeSpan, option == SpanFlag::ThreeSpan); }
    void operator()(MaterialGroup /*group*/) { archive.Take(name, problem.Combo1); }

private:
    template <typename Chosen, typename Option>
    void Choose(Chosen& chosen, Option option)
    {
        bool isOn = chosen == option;
        archive.Take(name, isOn);
        if constexpr (Archive::IsReading) {
            if (isOn) {
                chosen = option;
            }
        }
    }

    Archive& archive;
    FieldsOf<Archive, BeamProblem>& problem;
    std::string_view name;
};

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, BeamProblem>& problem)
{
    CriteriaFieldTaker<Archive>(archive, problem).TakeAll();
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, LoadSet>& loads)
{
    BeamProblem holder;
    holder.Loads = loads;
    CriteriaFieldTaker<Archive>(archive, holder).TakeAll();
    if constexpr (Archive::IsReading) {
        loads = holder.Loads;
    }
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, NdsEdition>& edition)
{
    auto& [Nds1997, Nds2001, Nds2005, Nds2012, Nds2015, Nds2018] = edition;
    TakeEach(archive, "Nds1997", Nds1997, "Nds2001", Nds2001, "Nds2005", Nds2005, "Nds2012", Nds2012,
             "Nds2015", Nds2015, "Nds2018", Nds2018);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, EntriesToRestore>& restore)
{
    auto& [LoadsMultipliedFlag, SavedUniform, SavedPartial, SavedIncTL, SavedIncUnifTL, HipLoadsGrown,
           SavedUBLtext, SavedCantUBLtext] = restore;
    TakeEach(archive, "LoadsMultipliedFlag", LoadsMultipliedFlag, "SavedUniform", SavedUniform,
             "SavedPartial", SavedPartial, "SavedIncTL", SavedIncTL, "SavedIncUnifTL", SavedIncUnifTL,
             "HipLoadsGrown", HipLoadsGrown, "SavedUBLtext", SavedUBLtext, "SavedCantUBLtext",
             SavedCantUBLtext);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, UnbalancedLoads>& loads)
{
    auto& [Overhang, Span, SavedLiveUniform, SavedLivePoint, SavedLivePartial] = loads;
    TakeEach(archive, "Overhang", Overhang, "Span", Span, "SavedLiveUniform", SavedLiveUniform,
             "SavedLivePoint", SavedLivePoint, "SavedLivePartial", SavedLivePartial);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, CustomEntry>& custom)
{
    auto& [Fb, Fv, E, FcPerp, Wid2x, Wid4x, Wid6x, WidGLB, WidGLBHDR, SPG, CustomIngradeSP, MSRCheckbox,
           MELCheckbox, Roundoption, Diam, Exponent] = custom;
    TakeEach(archive, "Fb", Fb, "Fv", Fv, "E", E, "FcPerp", FcPerp, "Wid2x", Wid2x, "Wid4x", Wid4x, "Wid6x",
             Wid6x, "WidGLB", WidGLB, "WidGLBHDR", WidGLBHDR, "SPG", SPG, "CustomIngradeSP", CustomIngradeSP,
             "MSRCheckbox", MSRCheckbox, "MELCheckbox", MELCheckbox, "Roundoption", Roundoption, "Diam", Diam,
             "Exponent", Exponent);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, MemberEntry>& entry)
{
    auto& [BreadthText, DepthText, SpeciesText, Custom, Product, ShapeName] = entry;
    TakeEach(archive, "BreadthText", BreadthText, "DepthText", DepthText, "SpeciesText", SpeciesText,
             "Custom", Custom, "Product", Product, "ShapeName", ShapeName);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, SelectionRecord>& selection)
{
    auto& [MemberChoice, MemberStatus, RecordDate] = selection;
    TakeEach(archive, "MemberChoice", MemberChoice, "MemberStatus", MemberStatus, "RecordDate", RecordDate);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, DataSheet>& sheet)
{
    auto& [Labels, Label133Missing, ReportNotes, IsSteel] = sheet;
    TakeEach(archive, "Label", Labels, "Label133Missing", Label133Missing, "ReportNotes", ReportNotes,
             "IsSteel", IsSteel);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, RecordHeading>& heading)
{
    auto& [Project, Description, BeamId, Heading1, Heading2, Date, Initials] = heading;
    TakeEach(archive, "Project", Project, "Description", Description, "BeamId", BeamId, "Heading1", Heading1,
             "Heading2", Heading2, "Date", Date, "Initials", Initials);
}

/// A sheet that is recovered cannot be refilled: its member was not the last to be tested.
template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, RecordOnShow>& record)
{
    auto& [Sheet, OwnSheet, Heading, IsOfSelection, CanBeRefilled, FromDisk, HeaderChanged] = record;
    TakeEach(archive, "Sheet", Sheet, "OwnSheet", OwnSheet, "Heading", Heading, "IsOfSelection",
             IsOfSelection, "FromDisk", FromDisk, "HeaderChanged", HeaderChanged);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, PrintHeader>& header)
{
    auto& [Heading1, Heading2, Initialbox] = header;
    TakeEach(archive, "Heading1", Heading1, "Heading2", Heading2, "Initialbox", Initialbox);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, Session>& session)
{
    auto& [Problem, Nds, Restore, Unbalanced, IncreasingTotalLoad, IncreasingLiveLoad, Numbers, Analysis,
           Stations, SoPineLowered, Member, Steel, SteelPicks, DeflectionLimitsInHand, Multiplied, Entry,
           Selection, NoteClipboard, Record, Header, Defaults, CenterForms, RestoreDefaultPrinter, HighDPI,
           PrintFont, KeptProblem] = session;
    TakeEach(archive, "Problem", Problem, "Nds", Nds, "Restore", Restore, "Unbalanced", Unbalanced,
             "IncreasingTotalLoad", IncreasingTotalLoad, "IncreasingLiveLoad", IncreasingLiveLoad,
             "DeflectionLimitsInHand", DeflectionLimitsInHand, "Multiplied", Multiplied, "Entry", Entry,
             "Selection", Selection, "NoteClipboard", NoteClipboard, "Record", Record, "Header", Header,
             "HighDPI", HighDPI, "PrintFont", PrintFont, "KeptProblem", KeptProblem);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, ColumnIdentity>& identity)
{
    auto& [ColumnProj, columnID, ColumnDescription] = identity;
    TakeEach(archive, "ColumnProj", ColumnProj, "columnID", columnID, "ColumnDescription", ColumnDescription);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, ColumnEntry>& entry)
{
    auto& [cReacText, cHTtext, cD1text, cD2text, cModeText, cDurText, cFcText, cEtext, ColSpeciesCombo,
           cWetButton, ColIncised, ResetKf, Type, ValueGroup] = entry;
    TakeEach(archive, "cReacText", cReacText, "cHTtext", cHTtext, "cD1text", cD1text, "cD2text", cD2text,
             "cModeText", cModeText, "cDurText", cDurText, "cFcText", cFcText, "cEtext", cEtext,
             "ColSpeciesCombo", ColSpeciesCombo, "cWetButton", cWetButton, "ColIncised", ColIncised,
             "ResetKf", ResetKf, "Type", Type, "ValueGroup", ValueGroup);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, StudEntry>& stud)
{
    auto& [WindStudHt, WindStudSpacing, BreadthCombo, DepthCombo, WindStudCombo, WindStudFb, WindStudFc,
           WindStudE, AxialPLFtextbox, AxialPointTextbox, AxialDurTextbox, DurWindTextbox, Wind, Beg, End,
           RepWindStud, RepIBCCheck] = stud;
    TakeEach(archive, "WindStudHt", WindStudHt, "WindStudSpacing", WindStudSpacing, "BreadthCombo",
             BreadthCombo, "DepthCombo", DepthCombo, "WindStudCombo", WindStudCombo, "WindStudFb", WindStudFb,
             "WindStudFc", WindStudFc, "WindStudE", WindStudE, "AxialPLFtextbox", AxialPLFtextbox,
             "AxialPointTextbox", AxialPointTextbox, "AxialDurTextbox", AxialDurTextbox, "DurWindTextbox",
             DurWindTextbox, "Wind", Wind, "Beg", Beg, "End", End, "RepWindStud", RepWindStud, "RepIBCCheck",
             RepIBCCheck);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, EnteredHeading>& entered)
{
    auto& [Column, Heading] = entered;
    TakeEach(archive, "Column", Column, "Heading", Heading);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, ColumnSheet>& sheet)
{
    auto& [Labels, SheathNote, Sheathnote2, ReportNotes] = sheet;
    TakeEach(archive, "Label", Labels, "SheathNote", SheathNote, "Sheathnote2", Sheathnote2, "ReportNotes",
             ReportNotes);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, ColumnRecordOnShow>& record)
{
    auto& [Sheet, OwnSheet, HasOwn, FromDisk, IsUnsaved] = record;
    TakeEach(archive, "Sheet", Sheet, "OwnSheet", OwnSheet, "HasOwn", HasOwn, "FromDisk", FromDisk,
             "IsUnsaved", IsUnsaved);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, ColumnSession>& columns)
{
    auto& [Face, Identity, Entry, Stud, ValuesOf, Problem, Carried, Grid, ColD1Text, ColD2Text, WoodTest,
           SteelProblem, SteelPicks, StlColSizeText, StlColGrade, SteelTest, StudRun, KeptStud, Heading,
           HeaderChanged, WoodRecord, SteelRecord] = columns;
    TakeEach(archive, "Face", Face, "Identity", Identity, "Entry", Entry, "Stud", Stud, "ValuesOf", ValuesOf,
             "ColD1Text", ColD1Text, "ColD2Text", ColD2Text, "StlColSizeText", StlColSizeText, "StlColGrade",
             StlColGrade, "KeptStud", KeptStud, "Heading", Heading, "HeaderChanged", HeaderChanged,
             "WoodRecord", WoodRecord, "SteelRecord", SteelRecord);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, NotchEntry>& entry)
{
    auto& [MemberListBox, NotchListBox, DurListbox, MaxVtextbox, breadthtextbox, depthtextbox, Species,
           Fvtextbox, dnTextbox, eTextbox, rdTextbox, rpTextbox, tTextbox, WetUseCheckbox, NoSplitCheckbox] =
        entry;
    TakeEach(archive, "MemberListBox", MemberListBox, "NotchListBox", NotchListBox, "DurListbox", DurListbox,
             "MaxVtextbox", MaxVtextbox, "breadthtextbox", breadthtextbox, "depthtextbox", depthtextbox,
             "Species", Species, "Fvtextbox", Fvtextbox, "dnTextbox", dnTextbox, "eTextbox", eTextbox,
             "rdTextbox", rdTextbox, "rpTextbox", rpTextbox, "tTextbox", tTextbox, "WetUseCheckbox",
             WetUseCheckbox, "NoSplitCheckbox", NoSplitCheckbox);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, NotchYears>& years)
{
    auto& [NdsYear, Line] = years;
    TakeEach(archive, "NdsYear", NdsYear, "Line", Line);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, EnteredNotchHeading>& entered)
{
    auto& [Usual, Heading] = entered;
    TakeEach(archive, "Usual", Usual, "Heading", Heading);
}

template <typename Archive>
void TakeFields(Archive& archive, FieldsOf<Archive, NotchSession>& notch)
{
    auto& [Entry, Years, YearsOf, Run, Earlier, Heading, HeaderChanged] = notch;
    TakeEach(archive, "Entry", Entry, "Years", Years, "YearsOf", YearsOf, "Heading", Heading, "HeaderChanged",
             HeaderChanged);
}

}  // namespace kordavan
