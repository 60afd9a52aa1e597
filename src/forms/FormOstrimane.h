#pragma once

#include "forms/Form.h"

namespace kordavan {

/// The check of a notched member.
class FormOstrimane : public Form {
    Q_OBJECT

public:
    explicit FormOstrimane(Walk& walk);
};

}  // namespace kordavan
