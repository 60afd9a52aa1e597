#include "forms/Form19.h"

namespace kordavan {

namespace {

constexpr std::string_view Page19 =
    "WOOD COLUMN RECORD\n\n"
    "The page for the building file: the column, its height and bracing, its values with their factors, and "
    "the stress in the plane that governs. Print it, save it as a PDF, copy it as text (Ctrl+Shift+C), or save "
    "it as a record that can be shown and printed again.\n\n"
    "A record loaded from a file is only text; it cannot be calculated again. Esc leads back to the "
    "selection.";

constexpr ColumnRecordScreen Screen19{.Form = "Form19",
                                      .Title = "Wood Column Record",
                                      .Kind = ColumnRecordKind::Wood,
                                      .ShownOn = Screen::WoodColumnRecord,
                                      .Selection = Screen::WoodColumns,
                                      .SaveCommand = "MnuSave",
                                      .LoadCommand = "MnuLoad",
                                      .Page = Page19};

}  // namespace

Form19::Form19(Walk& walk) : ColumnRecordForm(walk, Screen19) {}

}  // namespace kordavan
