#include "forms/Form23.h"

namespace kordavan {

namespace {

constexpr ColumnRecordScreen Screen23{.Form = "Form23",
                                      .Title = "Steel Column Record",
                                      .Kind = ColumnRecordKind::Steel,
                                      .ShownOn = Screen::SteelColumnRecord,
                                      .Selection = Screen::SteelColumns,
                                      .SaveCommand = "MnuSaveStlCol",
                                      .LoadCommand = "MnuLoadStlColumn",
                                      .Page = GuidePage::ColumnRecords};

}  // namespace

Form23::Form23(Walk& walk) : ColumnRecordForm(walk, Screen23) {}

}  // namespace kordavan
