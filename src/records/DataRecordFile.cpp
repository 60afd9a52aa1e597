#include "records/DataRecordFile.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "records/DataRecordLayout.h"
#include "records/DataSheetCaptions.h"
#include "records/PrintableText.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

constexpr std::string_view NotDataRecord =
    "The file you have selected does not contain a Kordavan Data Record.  Please check to see if you "
    "selected the appropriate file type.\n\n"
    "Beam Data Records have a default extension of *.DAT\n\n"
    "Custom Value files have an extension of *.VAL\n"
    "Criteria files have an extension of *.CRI\n"
    "Column Data Records have an extension of *.COL";
constexpr std::string_view DataRecordSavedAs = "The Data Record has been saved as\n    ";
constexpr std::string_view HowToReload =
    "\nPlease Note: To reload this saved Data Record file you MUST have the Data Record Page open. You may "
    "calculate a fictious beam, if necessary, to get to the data record page. Select FILE from the menu bar, "
    "then select LOAD RECORD..."
    "\nATTENTION: If you anticipate making changes to the loads or other criteria for this member in the "
    "future, SAVE this beam's CRITERIA (form 1).";

constexpr std::array<std::size_t, 7> StabilityLabels{188, 189, 190, 191, 192, 193, 194};

/// Spare cells, which the oldest records leave blank.
constexpr std::array<std::size_t, 7> SpareLabels{182, 183, 184, 185, 200, 201, 202};

/// True of a cell whose text the record holds.
bool IsStored(std::size_t label)
{
    return FindRecordField(DataRecordLayout, LabelName(label)) != nullptr &&
           std::find(BlankSlots.begin(), BlankSlots.end(), label) == BlankSlots.end();
}

void Blank(DataSheet& sheet, const std::array<std::size_t, 7>& labels)
{
    for (const std::size_t label : labels) {
        sheet[label].clear();
    }
}

/// No record tells whether Label33 is the repetitive or the form factor, so what stands there stays.
void ShowCaptions(DataSheet& sheet)
{
    const std::string factor = sheet[33];
    FillFixedCaptions(sheet);
    if (!sheet.IsSteel && !factor.empty()) {
        sheet[33] = factor;
    }
}

void ReadTexts(const PackedRecord& record, DataSheet& sheet)
{
    for (std::size_t label = 0; label < DataSheet::LabelCount; ++label) {
        if (IsStored(label)) {
            sheet[label] = PrintableText(record, LabelName(label));
        }
    }
    sheet.Label133Missing = PrintableText(record, "Label133Missing");
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        sheet.ReportNotes[k] = PrintableText(record, "ReportNotes", k);
    }
}

}  // namespace

PackedRecord MakeDataRecord(const DataSheet& sheet, const RecordHeading& heading)
{
    PackedRecord record(DataRecordLayout);
    record.SetInteger("RecordTag", DataRecordTag);
    record.SetFlag("SteelRecord", sheet.IsSteel);
    for (std::size_t label = 0; label < DataSheet::LabelCount; ++label) {
        if (IsStored(label)) {
            record.SetText(LabelName(label), sheet[label]);
        }
    }
    record.SetText("Label1", heading.Project);
    record.SetText("Label2", heading.Description);
    record.SetText("Label3", heading.BeamId);
    record.SetText("Label133Missing", sheet.Label133Missing);
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        record.SetText("ReportNotes", sheet.ReportNotes[k], k);
    }
    return record;
}

Outcome CheckDataRecordTag(const PackedRecord& record, UserPort& user)
{
    const int tag = record.Integer("RecordTag");
    return tag == DataRecordTag || tag == OldDataRecordTag
               ? Outcome::Done
               : Refuse(user, Marked(Refusal(NotDataRecord), MessageIcon::Warning));
}

void RestoreDataSheet(const PackedRecord& record, DataSheet& sheet)
{
    const bool isOld = record.Integer("RecordTag") == OldDataRecordTag;
    sheet.IsSteel = !isOld && record.Flag("SteelRecord");
    ShowCaptions(sheet);
    ReadTexts(record, sheet);
    if (sheet[12].empty()) {
        sheet[12] = BeamSpanCaption;
    }
    sheet[60] = sheet.IsSteel ? BearingLengthCaption : BearingAreaCaption;
    if (!sheet.IsSteel) {
        sheet[176].clear();  // bearing at point loads is of steel alone
    }
    if (isOld || sheet.IsSteel) {
        Blank(sheet, StabilityLabels);
    }
    if (isOld) {
        Blank(sheet, SpareLabels);
    }
}

Outcome SaveDataRecord(const DataSheet& sheet, const RecordHeading& heading, const std::string& path,
                       UserPort& user)
{
    if (const std::string fault = ReplaceRecord(path, MakeDataRecord(sheet, heading).Bytes());
        !fault.empty()) {
        return RefuseSaving(path, fault, user);
    }
    user.Tell(Alert(std::string(DataRecordSavedAs) + path + std::string(HowToReload)));
    return Outcome::Done;
}

Outcome OpenDataRecord(const std::string& path, DataSheet& sheet, UserPort& user)
{
    const FileRead file = ReadRecordFile(path);
    if (!file.Bytes) {
        return RefuseReading(path, file.Fault, user);
    }
    const PackedRecord record(DataRecordLayout, *file.Bytes);
    if (CheckDataRecordTag(record, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    RestoreDataSheet(record, sheet);
    return Outcome::Done;
}

}  // namespace kordavan
