#include "records/RecoveryCopy.h"

#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <utility>

#include "core/NumberText.h"
#include "materials/SclProducts.h"
#include "records/RecoveryFields.h"

namespace kordavan {

namespace {

constexpr std::string_view RecoveryTag = "Kordavan recovery copy ";
constexpr int RecoveryVersion = 1;
constexpr std::string_view RecoveryEnd = "End";

template <typename Value>
concept Choice = std::is_enum_v<Value>;
template <typename Value>
concept Count = std::is_integral_v<Value> && !std::is_same_v<Value, bool>;

constexpr int LastOf(SpeciesGroup /*any*/)
{
    return static_cast<int>(SpeciesGroup::Steel);
}
constexpr int LastOf(Edition /*any*/)
{
    return static_cast<int>(Edition::Nds2018);
}
constexpr int LastOf(ColumnFace /*any*/)
{
    return static_cast<int>(ColumnFace::Studs);
}
constexpr int LastOf(ColumnType /*any*/)
{
    return static_cast<int>(ColumnType::BoltedBuiltUp);
}
constexpr int LastOf(ColumnValueGroup /*any*/)
{
    return static_cast<int>(ColumnValueGroup::BeamAndStringer);
}

std::string LineText(const std::string& text)
{
    return text;
}
std::string LineText(bool flag)
{
    return flag ? "1" : "";
}
std::string LineText(float value)
{
    return value == 0 ? "" : PlainNumber(value);
}
template <Count Number>
std::string LineText(Number number)
{
    return number == 0 ? "" : PlainNumber(static_cast<double>(number));
}
template <Choice Option>
std::string LineText(Option option)
{
    return LineText(static_cast<int>(option));
}

/// False where the text is none that LineText gives; the value is then anything.
bool TakeLineText(const std::string& text, std::string& value)
{
    value = text;
    return true;
}
bool TakeLineText(const std::string& text, bool& value)
{
    value = !text.empty();
    return text.empty() || text == "1";
}
bool TakeLineText(const std::string& text, float& value)
{
    value = Single(Val(text));
    return text.empty() || (IsNumeric(text) && std::isfinite(value));
}
template <Count Number>
bool TakeLineText(const std::string& text, Number& value)
{
    const double number = Val(text);
    constexpr double least = std::is_signed_v<Number> ? std::numeric_limits<std::int16_t>::min() : 0;
    const bool isHeld =
        number >= least && number <= std::numeric_limits<std::int16_t>::max() && number == std::floor(number);
    value = isHeld ? static_cast<Number>(number) : Number{};
    return text.empty() || (IsNumeric(text) && isHeld);
}
template <Choice Option>
bool TakeLineText(const std::string& text, Option& value)
{
    int position = 0;
    const bool isHeld = TakeLineText(text, position) && position >= 0 && position <= LastOf(value);
    value = isHeld ? static_cast<Option>(position) : Option{};
    return isHeld;
}

template <typename Value>
concept LineValue = requires(const Value& value)
{
    LineText(value);
};

/// Goes through the fields of records, arrays and what may be absent, and leaves the single values to a
/// store.
template <typename Store>
class RecoveryArchive : public Store {
public:
    static constexpr bool IsReading = Store::Reads;

    template <typename Value>
    void Take(std::string_view name, Value& value)
    {
        const std::size_t length = path.size();
        path += path.empty() || name.starts_with('[') ? "" : ".";
        path += name;
        TakeAt(value);
        path.resize(length);
    }

private:
    template <LineValue Value>
    void TakeAt(Value& value)
    {
        Store::Exchange(path, value);
    }

    template <typename Items>
    requires requires(Items& items) { std::tuple_size<std::remove_const_t<Items>>::value; }
    void TakeAt(Items& items)
    {
        for (std::size_t k = 0; k < items.size(); ++k) {
            Take(BoxName({}, k), items[k]);
        }
    }

    template <typename Optional>
    requires requires(Optional& value) { value.has_value(); }
    void TakeAt(Optional& value)
    {
        bool isThere = value.has_value();
        Store::Exchange(path, isThere);
        if constexpr (IsReading) {
            value.reset();
            if (isThere) {
                value.emplace();
            }
        }
        if (isThere) {
            Take("Value", *value);
        }
    }

    template <typename Record>
    void TakeAt(Record& record)
    {
        TakeFields(*this, record);
    }

    std::string path;
};

class LineWriter {
public:
    static constexpr bool Reads = false;

    template <typename Value>
    void Exchange(const std::string& path, const Value& value)
    {
        if (const std::string text = LineText(value); !text.empty()) {
            Write(path, text);
        }
    }

    void Write(std::string_view path, std::string_view text)
    {
        Lines += path;
        Lines += '=';
        for (const char each : text) {
            switch (each) {
                case '\\':
                    Lines += "\\\\";
                    break;
                case '\n':
                    Lines += "\\n";
                    break;
                default:
                    Lines += each;
            }
        }
        Lines += '\n';
    }

    std::string Lines;
};

/// None where an escape is none of the writer's.
std::optional<std::string> UnescapeLine(std::string_view written)
{
    std::string text;
    for (std::size_t k = 0; k < written.size(); ++k) {
        if (written[k] != '\\') {
            text += written[k];
            continue;
        }
        ++k;
        if (k == written.size() || (written[k] != '\\' && written[k] != 'n')) {
            return std::nullopt;
        }
        text += written[k] == 'n' ? '\n' : '\\';
    }
    return text;
}

class LineReader {
public:
    static constexpr bool Reads = true;

    /// Takes the lines up to the end mark, which nothing may follow. False where they are not whole.
    bool TakeLines(std::string_view lines)
    {
        while (!lines.empty()) {
            const std::size_t end = lines.find('\n');
            if (end == std::string_view::npos) {
                return false;
            }
            const std::string_view line = lines.substr(0, end);
            lines.remove_prefix(end + 1);
            if (line == RecoveryEnd) {
                return lines.empty();
            }
            if (!TakeLine(line)) {
                return false;
            }
        }
        return false;
    }

    template <typename Value>
    void Exchange(const std::string& path, Value& value)
    {
        const auto found = texts.find(path);
        if (!TakeLineText(found == texts.end() ? std::string{} : found->second, value)) {
            hasFault = true;
        }
        if (found != texts.end()) {
            texts.erase(found);
        }
    }

    bool HasTakenAll() const { return !hasFault && texts.empty(); }

private:
    bool TakeLine(std::string_view line)
    {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) {
            return false;
        }
        std::optional<std::string> text = UnescapeLine(line.substr(equals + 1));
        return text && texts.emplace(line.substr(0, equals), std::move(*text)).second;
    }

    std::map<std::string, std::string> texts;
    bool hasFault = false;
};

/// What the first line says; the lines behind it are left in the text.
RecoveryFault TakeTag(std::string_view& bytes)
{
    if (!bytes.starts_with(RecoveryTag)) {
        return RecoveryTag.starts_with(bytes) ? RecoveryFault::Broken : RecoveryFault::Foreign;
    }
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const std::string_view version = bytes.substr(RecoveryTag.size(), end - RecoveryTag.size());
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    if (!IsNumeric(version) || Val(version) < RecoveryVersion) {
        return RecoveryFault::Broken;
    }
    return Val(version) > RecoveryVersion ? RecoveryFault::Newer : RecoveryFault::None;
}

}  // namespace

std::string EntryLines(const WorkAtHand& work)
{
    RecoveryArchive<LineWriter> archive;
    TakeEach(archive, "Beam", std::as_const(work.Beam), "Columns", std::as_const(work.Columns), "Notch",
             std::as_const(work.Notch));
    return std::move(archive.Lines);
}

std::string MakeRecoveryCopy(const RecoveryNote& note, std::string_view entryLines)
{
    LineWriter head;
    head.Write("Made", note.Made);
    head.Write("Screen", note.Screen);
    std::string copy(RecoveryTag);
    copy += LineText(RecoveryVersion);
    copy += '\n';
    copy += head.Lines;
    copy += entryLines;
    copy += RecoveryEnd;
    copy += '\n';
    return copy;
}

RecoveryRead ReadRecoveryCopy(std::string_view bytes, const WorkAtHand& start)
{
    RecoveryRead read{.Note = {}, .Beam = start.Beam, .Columns = start.Columns, .Notch = start.Notch};
    read.Fault = TakeTag(bytes);
    if (read.Fault != RecoveryFault::None) {
        return read;
    }
    RecoveryArchive<LineReader> archive;
    if (!archive.TakeLines(bytes)) {
        read.Fault = RecoveryFault::Broken;
        return read;
    }
    TakeEach(archive, "Made", read.Note.Made, "Screen", read.Note.Screen, "Beam", read.Beam, "Columns",
             read.Columns, "Notch", read.Notch);
    if (!archive.HasTakenAll() || read.Beam.Entry.Product >= SclProductCount) {
        read.Fault = RecoveryFault::Broken;
    }
    return read;
}

}  // namespace kordavan
