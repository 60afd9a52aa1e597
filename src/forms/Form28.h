#pragma once

#include "forms/Form.h"

namespace kordavan {

/// The record of a stud under wind.
class Form28 : public Form {
    Q_OBJECT

public:
    explicit Form28(Walk& walk);
};

}  // namespace kordavan
