#pragma once

#include "forms/Form.h"

namespace kordavan {

/// The selection of a steel column: quick picks, and the report of one size.
class Form10 : public Form {
    Q_OBJECT

public:
    explicit Form10(Walk& walk);
};

}  // namespace kordavan
