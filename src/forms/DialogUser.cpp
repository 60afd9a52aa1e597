#include "forms/DialogUser.h"

#include <QApplication>
#include <QMessageBox>

#include "forms/Kit.h"

namespace kordavan {

namespace {

QMessageBox::Icon IconOf(const Message& message)
{
    switch (message.Icon) {
        case MessageIcon::Warning:
            return QMessageBox::Warning;
        case MessageIcon::Information:
            return QMessageBox::Information;
        case MessageIcon::None:
            break;
    }
    switch (message.Kind) {
        case MessageKind::Refusal:
            return QMessageBox::Warning;
        case MessageKind::Alert:
            return QMessageBox::Information;
        case MessageKind::Question:
            return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

void DialogUser::Tell(const Message& message)
{
    if (isSpeaking) {
        return;
    }
    QMessageBox box(QApplication::activeWindow());
    box.setStandardButtons(QMessageBox::Ok);
    Show(box, message);
}

bool DialogUser::Ask(const Message& question)
{
    if (isSpeaking) {
        return false;
    }
    QMessageBox box(QApplication::activeWindow());
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(question.IsRisky ? QMessageBox::No : QMessageBox::Yes);
    return Show(box, question) == QMessageBox::Yes;
}

int DialogUser::Show(QMessageBox& box, const Message& message)
{
    isSpeaking = true;
    const bool isHelp = message.Icon == MessageIcon::Information;
    if (!isHelp) {
        QApplication::beep();
    }
    box.setWindowFlag(Qt::WindowStaysOnTopHint);  // over the calculator too
    box.setTextFormat(Qt::PlainText);
    box.setIcon(IconOf(message));
    box.setWindowTitle(Text(message.Title));
    box.setText(Text(message.Text));
    const int answer = box.exec();
    isSpeaking = false;
    return answer;
}

}  // namespace kordavan
