#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "forms/DialogUser.h"

namespace kordavan {
namespace {

/// What stands in the message box that is up, and the answer it then gets.
template <typename Look>
void WhenShown(const Look& look)
{
    QTimer::singleShot(0, [look] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        look(*box);
    });
}

TEST(DialogUserTest, ShowsTitleTextAndIcon)
{
    DialogUser user;
    Message message = Refusal("Please enter a beam Span", "Span");
    message.Icon = MessageIcon::Warning;
    WhenShown([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle().toStdString(), "Kordavan");
        EXPECT_EQ(box.text().toStdString(), "Please enter a beam Span");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        box.accept();
    });
    user.Tell(message);
}

TEST(DialogUserTest, TellsYesFromNo)
{
    DialogUser user;
    WhenShown([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(user.Ask(Question("Do you wish to exit?")));
    WhenShown([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    EXPECT_FALSE(user.Ask(Question("Do you wish to exit?")));
    WhenShown([](QMessageBox& box) { box.reject(); });
    EXPECT_FALSE(user.Ask(Question("Do you wish to exit?")));
}

TEST(DialogUserTest, NeverStacksMessages)
{
    DialogUser user;
    WhenShown([&user](QMessageBox& box) {
        user.Tell(Alert("a second message"));
        EXPECT_FALSE(user.Ask(Question("a question meanwhile?")));
        EXPECT_EQ(QApplication::activeModalWidget(), &box);
        box.accept();
    });
    user.Tell(Alert("the first message"));
}

}  // namespace
}  // namespace kordavan
