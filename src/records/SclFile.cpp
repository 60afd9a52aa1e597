#include "records/SclFile.h"

#include <array>
#include <filesystem>
#include <optional>
#include <system_error>

#include "core/NumberText.h"
#include "design/CustomValues.h"
#include "records/BoxNumbers.h"
#include "records/RecordFile.h"
#include "records/SclLayout.h"

namespace kordavan {

namespace {

constexpr std::string_view UnknownProduct = "Error, not able to load values. form2.combo1";
constexpr std::string_view NoName = "Please enter the manufacturer's name and grade.";
constexpr std::string_view UnfitSclNumber =
    "An SCL value file cannot hold the number in this box: it is too large, or an Fb, Fv or Fc that is no "
    "whole number.  Please change it and save again.";
constexpr std::string_view SclSaved = "SCL Custom values have been saved to hard drive.";
constexpr std::string_view NotSaved = "Error saving your Custom SCL values.";

constexpr std::string_view NameBox = "Text5";

/// One of the two files.
struct SclFile {
    std::string_view Name;
    const RecordLayout& Layout;
    const RecordLayout& PartLayout;  // of one product
    std::int16_t Tag;
};

constexpr SclFile ListedFile{.Name = SclFileName, .Layout = SclLayout, .PartLayout = SclPart, .Tag = SclTag};
constexpr SclFile OwnFile{
    .Name = CustomSclFileName, .Layout = CustomSclLayout, .PartLayout = CustomSclPart, .Tag = CustomSclTag};

/// Where a product's values are.
struct SclPlace {
    const SclFile& File;
    std::size_t Index;
};

SclPlace PlaceOf(std::size_t product)
{
    return IsCustomScl(product) ? SclPlace{OwnFile, product - FirstCustomScl} : SclPlace{ListedFile, product};
}

struct NeededValue {
    std::string_view Field;
    std::string SclValues::*Text;
    OwnValue Box;
};

/// In the order in which they are asked for.
constexpr std::array NeededValues{
    NeededValue{"Fb", &SclValues::Fb, OwnValues::Fb},
    NeededValue{"Fv", &SclValues::Fv, OwnValues::Fv},
    NeededValue{"E", &SclValues::E, OwnValues::E},
    NeededValue{"FcPerp", &SclValues::FcPerp, OwnValues::FcPerp},
};

std::string PathOf(const std::string& folder, const SclFile& file)
{
    return (std::filesystem::path(folder) / file.Name).string();
}

/// No bytes where there is no file yet.
FileRead ReadIfThere(const std::string& path)
{
    std::error_code ignored;
    if (std::filesystem::status(path, ignored).type() == std::filesystem::file_type::not_found) {
        return {.Bytes = std::string{}, .Fault = {}};
    }
    return ReadRecordFile(path);
}

std::string OtherKindText(const SclFile& file)
{
    return std::string(file.Name) +
           " does not contain Kordavan SCL Values.  Please check to see if another file was saved under this "
           "name.";
}

Outcome CheckTag(const PackedRecord& record, const SclFile& file, UserPort& user)
{
    return record.Integer("RecordTag") == file.Tag
               ? Outcome::Done
               : Refuse(user, Marked(Refusal(OtherKindText(file)), MessageIcon::Warning));
}

SclValues ReadValues(const PackedRecord& part, std::size_t product)
{
    const float elasticity = part.Float("E");
    SclValues values{.Fb = BoxText(part.Integer("Fb")),
                     .Fv = BoxText(part.Integer("Fv")),
                     .E = elasticity == 0 ? std::string{} : FormatNumber(elasticity, "#.0"),
                     .FcPerp = BoxText(part.Integer("FcPerp")),
                     .Exponent = {},
                     .Name = {}};
    if (IsCustomScl(product)) {
        const float exponent = part.Float("Exponent");
        const bool isBlank = exponent == 0 && values.Fb.empty();
        values.Exponent = isBlank ? std::string{} : PlainNumber(exponent);
        values.Name = part.Text("Name");
    }
    return values;
}

bool IsAboveZero(std::string_view text)
{
    return IsNumeric(text) && Single(Val(text)) > 0;
}

Outcome CheckValues(std::size_t product, const SclValues& values, UserPort& user)
{
    for (const NeededValue& needed : NeededValues) {
        if (!IsAboveZero(values.*needed.Text)) {
            return Refuse(user, Refusal(needed.Box.MissingText, needed.Box.Box));
        }
    }
    if (!IsCustomScl(product)) {
        return Outcome::Done;
    }
    if (CheckSclExponent(values.Exponent, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    return IsBlank(values.Name) ? Refuse(user, Refusal(NoName, NameBox)) : Outcome::Done;
}

/// A number as the field holds it; false where it cannot.
bool SetNumber(std::string_view text, std::string_view field, PackedRecord& part)
{
    if (FindRecordField(part.Layout(), field)->Type == FieldType::Float) {
        const std::optional<float> held = HeldFloat(text);
        part.SetFloat(field, held.value_or(0));
        return held.has_value();
    }
    const std::optional<std::int16_t> held = HeldInteger(text);
    part.SetInteger(field, held.value_or(0));
    return held.has_value();
}

Outcome FillPart(std::size_t product, const SclValues& values, PackedRecord& part, UserPort& user)
{
    for (const NeededValue& needed : NeededValues) {
        if (!SetNumber(values.*needed.Text, needed.Field, part)) {
            return Refuse(user, Refusal(UnfitSclNumber, needed.Box.Box));
        }
    }
    if (IsCustomScl(product)) {
        SetNumber(values.Exponent, "Exponent", part);
        part.SetText("Name", values.Name);
    }
    return Outcome::Done;
}

Outcome RefuseSavingValues(const std::string& fault, UserPort& user)
{
    return Refuse(user, Marked(Refusal(std::string(NotSaved) + "\n" + fault), MessageIcon::Warning));
}

}  // namespace

Outcome CheckSclTag(const PackedRecord& record, UserPort& user)
{
    return CheckTag(record, ListedFile, user);
}

Outcome CheckCustomSclTag(const PackedRecord& record, UserPort& user)
{
    return CheckTag(record, OwnFile, user);
}

SclValues LoadSclValues(const std::string& folder, std::size_t product, UserPort& user)
{
    if (product >= SclProductCount) {
        user.Tell(Refusal(UnknownProduct));
        return {};
    }
    const SclPlace place = PlaceOf(product);
    const std::string path = PathOf(folder, place.File);
    const FileRead file = ReadIfThere(path);
    if (!file.Bytes) {
        RefuseReading(path, file.Fault, user);
        return {};
    }
    const PackedRecord record(place.File.Layout, *file.Bytes);
    if (file.Bytes->empty() || CheckTag(record, place.File, user) != Outcome::Done) {
        return {};
    }
    return ReadValues(record.Part("Products", place.Index), product);
}

Outcome SaveSclValues(const std::string& folder, std::size_t product, const SclValues& values, UserPort& user)
{
    if (product >= SclProductCount) {
        return Refuse(user, Refusal(NotSaved));
    }
    const SclPlace place = PlaceOf(product);
    PackedRecord part(place.File.PartLayout);
    if (CheckValues(product, values, user) != Outcome::Done ||
        FillPart(product, values, part, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    const std::string path = PathOf(folder, place.File);
    const FileRead file = ReadIfThere(path);
    if (!file.Bytes) {
        return RefuseSavingValues(file.Fault, user);
    }
    PackedRecord record(place.File.Layout, *file.Bytes);
    if (!file.Bytes->empty() && record.Integer("RecordTag") != place.File.Tag) {
        return RefuseSavingValues(OtherKindText(place.File), user);
    }
    record.SetInteger("RecordTag", place.File.Tag);
    record.SetPart("Products", place.Index, part);
    if (const std::string fault = ReplaceRecord(path, record.Bytes()); !fault.empty()) {
        return RefuseSavingValues(fault, user);
    }
    user.Tell(Alert(SclSaved));
    return Outcome::Done;
}

}  // namespace kordavan
