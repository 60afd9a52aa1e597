#include "records/DefaultsFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <system_error>
#include <utility>

#include "core/NumberText.h"
#include "design/EntryAdjustment.h"
#include "design/NewBeam.h"
#include "design/UnbracedEntry.h"
#include "records/DefaultsLayout.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

constexpr std::string_view AnotherKind =
    "A new Default Values file has been created for you.  You may set your default preferences at the menu "
    "bar of Form 1 by selecting OPTIONS, select SET DEFAULTS, and fill in your preferences.   PLEASE NOTE: "
    "ARIAL font is recommended for print-outs.";
constexpr std::string_view OtherFont =
    "Please Note: Arial is the recommended printout font. You have selected another font that may or may not "
    "display well on your printouts.";
constexpr std::string_view DefaultsSaved = "Your default settings were recorded and are ready for use.";
constexpr std::string_view LiveFault = "Please enter a valid numeric value for the Live Load PSF setting";
constexpr std::string_view TotalFault = "Please enter a valid numeric value for the Total Load PSF setting";

constexpr std::string_view RecommendedFont = "Arial";
constexpr std::array<std::string_view, 3> RecommendedFontTexts{"ARIAL", "Arial", "arial"};

constexpr std::array<std::pair<std::string_view, bool NdsEdition::*>, 4> EditionOptions{{
    {"OptionNDS18", &NdsEdition::Nds2018},
    {"OptionNDS15", &NdsEdition::Nds2015},
    {"OptionNDS12", &NdsEdition::Nds2012},
    {"OptionNDS05", &NdsEdition::Nds2005},
}};

bool IsMaterial(int position)
{
    return position >= 0 && position < static_cast<int>(SpeciesGroups.size());
}

void StartFirstRun(Session& session)
{
    session.Nds = EditionFlags(Edition::Nds2018);
    session.CenterForms = true;
    session.Defaults.CenterFormCheckbox = true;
}

std::string LoadText(float value)
{
    return std::isfinite(value) ? PlainNumber(value) : std::string{};
}

DefaultSettings ReadSettings(const PackedRecord& record)
{
    DefaultSettings settings;
    settings.DefHead1 = record.Text("DefHead1");
    settings.DefHead2 = record.Text("DefHead2");
    settings.DefInitials = record.Text("DefInitials");
    settings.DefCombo = IsMaterial(record.Integer("DefCombo")) ? record.Integer("DefCombo") : 0;
    settings.Def600 = record.Flag("Def600");
    settings.FontCombo = record.Text("FontCombo");
    for (std::size_t k = 0; k < LoadPairCount; ++k) {
        settings.LoadPairs[k] = {.Live = LoadText(record.Float("Livedefault", k)),
                                 .Total = LoadText(record.Float("TotalLoadDefault", k))};
    }
    settings.Def50ksi = record.Flag("Def50ksi");
    settings.CenterFormCheckbox = record.Integer("CenterFormCheckbox") == 1;
    settings.DefaultPrinterCheckbox = record.Integer("DefaultPrinterCheckbox") == 1;
    return settings;
}

/// No option stands for NDS 2001: in-grade values without any edition are its.
NdsEdition ReadEdition(const PackedRecord& record)
{
    NdsEdition flags;
    if (!record.Flag("defINGRADE")) {
        flags.Nds1997 = true;
    }
    for (const auto& [option, flag] : EditionOptions) {
        flags.*flag = record.Flag(option);
    }
    if (EditionInForce(flags) == Edition::None) {
        flags.Nds2001 = true;
    }
    return flags;
}

void ApplySettings(Session& session, const DefaultSettings& settings)
{
    session.Defaults = settings;
    session.Header = {
        .Heading1 = settings.DefHead1, .Heading2 = settings.DefHead2, .Initialbox = settings.DefInitials};
    const auto group = static_cast<SpeciesGroup>(settings.DefCombo);
    if (group != session.Problem.Combo1) {
        SwitchMaterial(session, group, session.Problem.Family);
    }
    session.HighDPI = settings.Def600;
    session.PrintFont = settings.FontCombo;
}

/// The printer's switch is cleared by the other box being off, not by its own; users have settings files that
/// count on it.
void ApplySwitches(const PackedRecord& record, Session& session)
{
    const int centers = record.Integer("CenterFormCheckbox");
    if (centers == 0 || centers == 1) {
        session.CenterForms = centers == 1;
    }
    if (record.Integer("DefaultPrinterCheckbox") == 1) {
        session.RestoreDefaultPrinter = true;
    } else if (centers == 0) {
        session.RestoreDefaultPrinter = false;
    }
}

/// The record of a file as it is, so that its reserved bytes stay; a new one where there is none to keep.
PackedRecord RecordToFill(const std::string& path)
{
    const FileRead file = ReadRecordFile(path);
    PackedRecord old(DefaultsLayout, file.Bytes.value_or(std::string{}));
    return old.Integer("RecordTag") == DefaultsTag ? old : PackedRecord(DefaultsLayout);
}

void FillRecord(const Session& session, const DefaultSettings& settings, PackedRecord& record)
{
    record.SetInteger("RecordTag", DefaultsTag);
    record.SetText("DefHead1", settings.DefHead1);
    record.SetText("DefHead2", settings.DefHead2);
    record.SetText("DefInitials", settings.DefInitials);
    record.SetFlag("defINGRADE", !session.Nds.Nds1997);
    record.SetInteger("DefCombo", static_cast<std::int16_t>(settings.DefCombo));
    record.SetFlag("Def600", settings.Def600);
    record.SetText("FontCombo", settings.FontCombo);
    for (std::size_t k = 0; k < LoadPairCount; ++k) {
        record.SetFloat("Livedefault", Single(Val(settings.LoadPairs[k].Live)), k);
        record.SetFloat("TotalLoadDefault", Single(Val(settings.LoadPairs[k].Total)), k);
    }
    record.SetFlag("Def50ksi", settings.Def50ksi);
    const Edition edition = EditionInForce(session.Nds);
    for (const auto& [option, flag] : EditionOptions) {
        record.SetFlag(option, EditionFlags(edition).*flag);
    }
    record.SetInteger("CenterFormCheckbox", settings.CenterFormCheckbox ? 1 : 0);
    record.SetInteger("DefaultPrinterCheckbox", settings.DefaultPrinterCheckbox ? 1 : 0);
}

Outcome CheckLoadPairs(const DefaultSettings& settings, UserPort& user)
{
    for (std::size_t k = 0; k < LoadPairCount; ++k) {
        const LoadPair& pair = settings.LoadPairs[k];
        if (const std::string_view fault = LoadPairFault(pair.Live, LoadPairSide::Live); !fault.empty()) {
            return Refuse(user, Refusal(fault, BoxName("Livedefault", k)));
        }
        if (const std::string_view fault = LoadPairFault(pair.Total, LoadPairSide::Total); !fault.empty()) {
            return Refuse(user, Refusal(fault, BoxName("TotalLoadDefault", k)));
        }
    }
    return Outcome::Done;
}

}  // namespace

void LoadDefaults(Session& session, const std::string& path, UserPort& user)
{
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) {
        ReplaceFile(path, {});
        StartFirstRun(session);
        return;
    }
    const FileRead file = ReadRecordFile(path);
    if (!file.Bytes) {
        RefuseReading(path, file.Fault, user);
        StartFirstRun(session);
        return;
    }
    if (file.Bytes->empty()) {
        StartFirstRun(session);
        return;
    }
    const PackedRecord record(DefaultsLayout, *file.Bytes);
    if (CheckDefaultsTag(record, user) != Outcome::Done) {
        return;
    }
    ApplySettings(session, ReadSettings(record));
    session.Nds = ReadEdition(record);
    session.Problem.INGRADE = true;
    session.Problem.ksi50 = session.Defaults.Def50ksi;
    ApplySwitches(record, session);
    session.KeptProblem = session.Problem;
}

Outcome CheckDefaultsTag(const PackedRecord& record, UserPort& user)
{
    return record.Integer("RecordTag") == DefaultsTag
               ? Outcome::Done
               : Refuse(user, Marked(Refusal(AnotherKind), MessageIcon::Information));
}

Outcome SaveDefaults(Session& session, const DefaultSettings& settings, const std::string& path,
                     UserPort& user)
{
    if (CheckLoadPairs(settings, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    const bool isRecommended = std::find(RecommendedFontTexts.begin(), RecommendedFontTexts.end(),
                                         settings.FontCombo) != RecommendedFontTexts.end();
    if (!isRecommended) {
        user.Tell(Alert(OtherFont));
    }
    PackedRecord record = RecordToFill(path);
    FillRecord(session, settings, record);
    if (const std::string fault = ReplaceRecord(path, record.Bytes()); !fault.empty()) {
        return RefuseSaving(path, fault, user);
    }
    const bool wasSaved = !HasUnsavedEntries(session);
    ApplySettings(session, settings);
    session.CenterForms = settings.CenterFormCheckbox;
    session.RestoreDefaultPrinter = settings.DefaultPrinterCheckbox;
    session.Problem.INGRADE = true;
    session.Problem.Incised = false;
    if (session.Problem.Combo1 == SpeciesGroup::Steel) {
        session.Problem.ksi50 = settings.Def50ksi;
    }
    session.Selection.reset();
    if (wasSaved) {
        session.KeptProblem = TypedEntries(session);
    }
    user.Tell(Alert(DefaultsSaved));
    return Outcome::Done;
}

DefaultSettings SettingsToShow(const Session& session)
{
    DefaultSettings settings = session.Defaults;
    if (settings.FontCombo.empty()) {
        settings.FontCombo = RecommendedFont;
    }
    return settings;
}

void ChooseEdition(Session& session, Edition edition)
{
    session.Nds = EditionFlags(edition);
    session.Selection.reset();
}

std::string_view LoadPairFault(std::string_view text, LoadPairSide side)
{
    const bool stands =
        text.empty() || (IsNumeric(text) && Val(text) >= 0 && std::isfinite(Single(Val(text))));
    if (stands) {
        return {};
    }
    return side == LoadPairSide::Live ? LiveFault : TotalFault;
}

}  // namespace kordavan
