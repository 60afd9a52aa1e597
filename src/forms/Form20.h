#pragma once

#include "forms/Form.h"

namespace kordavan {

/// The selection of a wood column: quick picks, and the test of one size.
class Form20 : public Form {
    Q_OBJECT

public:
    explicit Form20(Walk& walk);
};

}  // namespace kordavan
