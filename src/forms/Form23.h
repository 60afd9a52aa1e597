#pragma once

#include "forms/ColumnRecordForm.h"

namespace kordavan {

/// The record of a steel column.
class Form23 : public ColumnRecordForm {
    Q_OBJECT

public:
    explicit Form23(Walk& walk);
};

}  // namespace kordavan
