#pragma once

#include "forms/Form.h"

namespace kordavan {

/// A form that stands beside the one in front: closing it, by any way, hides it and asks nothing.
class BesideForm : public Form {
    Q_OBJECT

public:
    BesideForm(Walk& walk, std::string_view name);

protected:
    void GoBack() override { CloseAsked(); }
    void CloseAsked() override;
};

}  // namespace kordavan
