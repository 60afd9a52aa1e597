#include "forms/Form19.h"

namespace kordavan {

namespace {

constexpr ColumnRecordScreen Screen19{.Form = "Form19",
                                      .Title = "Wood Column Record",
                                      .Kind = ColumnRecordKind::Wood,
                                      .ShownOn = Screen::WoodColumnRecord,
                                      .Selection = Screen::WoodColumns,
                                      .SaveCommand = "MnuSave",
                                      .LoadCommand = "MnuLoad",
                                      .Page = GuidePage::ColumnRecords};

}  // namespace

Form19::Form19(Walk& walk) : ColumnRecordForm(walk, Screen19) {}

}  // namespace kordavan
