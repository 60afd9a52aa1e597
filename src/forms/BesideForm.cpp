#include "forms/BesideForm.h"

namespace kordavan {

BesideForm::BesideForm(Walk& theWalk, std::string_view name) : Form(theWalk, name)
{
    AddCommand(
        AddMenu("&File"), {"MnuClose"}, "&Close", [this] { CloseAsked(); }, QKeySequence::Close);
}

void BesideForm::CloseAsked()
{
    hide();
    if (Form* const front = TheWalk().Front()) {
        front->activateWindow();
    }
}

}  // namespace kordavan
