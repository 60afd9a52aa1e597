#include <QApplication>
#include <QIcon>

#include "columns/ColumnSession.h"
#include "design/Session.h"
#include "forms/DialogUser.h"
#include "forms/QtDesktop.h"
#include "forms/Walk.h"
#include "notch/NotchSession.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kordavan"));
    QApplication::setDesktopFileName(QStringLiteral(KORDAVAN_APP_ID));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/kordavan.svg")));
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);

    kordavan::Session session;
    kordavan::ColumnSession columns;
    kordavan::NotchSession notch;
    kordavan::DialogUser user;
    kordavan::QtDesktop desktop;
    kordavan::Walk walk(session, columns, notch, user, desktop);
    walk.Start();
    return QApplication::exec();
}
