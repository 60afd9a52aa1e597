#pragma once

#include "forms/Form.h"

namespace kordavan {

/// The record of a steel column.
class Form23 : public Form {
    Q_OBJECT

public:
    explicit Form23(Walk& walk);
};

}  // namespace kordavan
