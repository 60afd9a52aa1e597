#include "forms/QtDesktop.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLocale>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

#include "forms/FileDialog.h"
#include "forms/Kit.h"
#include "records/RecentFiles.h"

namespace kordavan {

QtDesktop::QtDesktop()
{
    sinceStart.start();
}

CalendarDay QtDesktop::Today()
{
    const QDate today = QDate::currentDate();
    return {.Year = today.year(), .Month = today.month(), .Day = today.day()};
}

std::string QtDesktop::MomentInWords()
{
    return Text(QLocale::c().toString(QDateTime::currentDateTime(),
                                      QStringLiteral("dddd, MMMM d, yyyy 'at' h:mm AP")));
}

int QtDesktop::MinutesSinceStart()
{
    constexpr qint64 millisecondsPerMinute = 60000;
    return static_cast<int>(sinceStart.elapsed() / millisecondsPerMinute);
}

bool QtDesktop::OpenFileExplorer()
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QDir::currentPath()));
}

/// Not quit(), which would close every form, and so ask again, first.
void QtDesktop::EndProgram()
{
    QCoreApplication::exit();
}

std::optional<std::string> QtDesktop::AskOpenFile(const FileDialogText& text)
{
    return AskFileToOpen(text);
}

std::optional<std::string> QtDesktop::AskSaveFile(const FileDialogText& text)
{
    return AskFileToSave(text);
}

void QtDesktop::CopyPicture(const QImage& picture, const std::string& words)
{
    auto* const contents = new QMimeData;
    contents->setImageData(picture);
    contents->setText(Text(words));
    QGuiApplication::clipboard()->setMimeData(contents);
}

std::string QtDesktop::FixedFilesFolder()
{
    return FolderOfFixedFiles(Text(QCoreApplication::applicationDirPath()),
                              Text(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
}

}  // namespace kordavan
