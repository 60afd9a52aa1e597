#pragma once

#include "forms/ColumnRecordForm.h"

namespace kordavan {

/// The record of a wood column.
class Form19 : public ColumnRecordForm {
    Q_OBJECT

public:
    explicit Form19(Walk& walk);
};

}  // namespace kordavan
