#include "forms/Form23.h"

namespace kordavan {

namespace {

constexpr std::string_view Page23 =
    "STEEL COLUMN RECORD\n\n"
    "The page for the building file: the shape, its unbraced length and slenderness, and its stress and area "
    "against what is required. Print it, save it as a PDF, copy it as text (Ctrl+Shift+C), or save it as a "
    "record that can be shown and printed again.\n\n"
    "A record loaded from a file is only text; it cannot be calculated again. Esc leads back to the "
    "selection.";

constexpr ColumnRecordScreen Screen23{.Form = "Form23",
                                      .Title = "Steel Column Record",
                                      .Kind = ColumnRecordKind::Steel,
                                      .ShownOn = Screen::SteelColumnRecord,
                                      .Selection = Screen::SteelColumns,
                                      .SaveCommand = "MnuSaveStlCol",
                                      .LoadCommand = "MnuLoadStlColumn",
                                      .Page = Page23};

}  // namespace

Form23::Form23(Walk& walk) : ColumnRecordForm(walk, Screen23) {}

}  // namespace kordavan
