#pragma once

#include "forms/Form.h"

namespace kordavan {

/// The criteria of a column, with faces for wood, steel and studs under wind.
class Form18 : public Form {
    Q_OBJECT

public:
    explicit Form18(Walk& walk);
};

}  // namespace kordavan
