#pragma once

#include "forms/Form.h"

namespace kordavan {

/// The report of a notch check, as it prints.
class NotchReport : public Form {
    Q_OBJECT

public:
    explicit NotchReport(Walk& walk);
};

}  // namespace kordavan
