#pragma once

#include "forms/Form.h"

namespace kordavan {

/// The record of a wood column.
class Form19 : public Form {
    Q_OBJECT

public:
    explicit Form19(Walk& walk);
};

}  // namespace kordavan
