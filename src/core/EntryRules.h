#pragma once

#include <string_view>

#include "core/Message.h"

namespace kordavan {

/// What a numeric box lets stand besides numbers that are not below zero.
enum class EntryKind {
    Length,    // nothing else
    Load,      // nothing else; a 0 empties the box
    Distance,  // a lone ".", on the way to ".5"
    Unbraced,  // "Any"
    Pitch      // a lone "."
};

struct EntryRule {
    std::string_view Box;  // the name of the box, without index
    EntryKind Kind;
    std::string_view Message;
};

enum class EntryVerdict { Stands, Emptied, Refused };

/// The rule of a numeric box by its name without index; none for boxes that take any text.
const EntryRule* FindEntryRule(std::string_view box);

/// Whether more may come: while it is typed, the beginnings of "Any" stand in an unbraced box.
enum class EntryState { Complete, BeingTyped };

/// Judges a changed text: Refused and Emptied both clear the box, Refused with the rule's message.
EntryVerdict JudgeEntry(const EntryRule& rule, std::string_view text,
                        EntryState state = EntryState::Complete);

/// Why the text of the calculator may not go into a box of this rule, or of none; an empty text when it may.
std::string_view InsertRefusal(const EntryRule* rule, std::string_view calculatorText);

namespace EntryTexts {
inline constexpr std::string_view NoCommas = "Please do not enter comma separators.";
inline constexpr std::string_view NothingToInsert = "The calculator shows no number to insert.";
inline constexpr std::string_view TooLargeToInsert = "Number is too large to insert";
}  // namespace EntryTexts

inline constexpr double LeastDuration = 0.9;
inline constexpr double MostDuration = 2.0;

/// The warning of an unusual duration factor: two lines that keep the text, or none while the text is in
/// 0.9 to 2.0 or can still become such a factor.
bool IsDoubtfulDuration(std::string_view text);
Message DoubtfulDurationWarning();

}  // namespace kordavan
