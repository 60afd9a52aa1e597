#include "forms/RecoveryWatch.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QLockFile>

#include "forms/Form.h"
#include "forms/Walk.h"
#include "records/RecordFile.h"
#include "records/RecoveryOffer.h"

namespace kordavan {

namespace {

constexpr std::chrono::seconds UsualDelay{4};
constexpr int MostPrograms = 16;  // that keep a copy at once

bool IsByThePerson(QEvent::Type type)
{
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::Shortcut:
        case QEvent::InputMethod:
        case QEvent::MouseButtonRelease:
        case QEvent::Wheel:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

/// A lock that a power cut has left empty names no program, and so would hold for ever.
bool TryLock(QLockFile& lock)
{
    lock.setStaleLockTime(0);
    if (lock.tryLock(0)) {
        return true;
    }
    qint64 program = 0;
    QString host;
    QString name;
    const bool isUnreadable =
        lock.error() == QLockFile::LockFailedError && !lock.getLockInfo(&program, &host, &name);
    return isUnreadable && lock.removeStaleLockFile() && lock.tryLock(0);
}

}  // namespace

RecoveryWatch::RecoveryWatch(Walk& theWalk, const WorkAtHand& workAtHand) : walk(theWalk), work(workAtHand)
{
    timer.setSingleShot(true);
    timer.setInterval(UsualDelay);
    connect(&timer, &QTimer::timeout, this, &RecoveryWatch::Follow);
    writer.setMaxThreadCount(1);
}

RecoveryWatch::~RecoveryWatch()
{
    writer.waitForDone();
}

std::optional<std::string> RecoveryWatch::Offer()
{
    fresh = EntryLines(work);
    TakeAnyPlace();
    if (path.empty() || !QFile::exists(Text(path))) {
        return std::nullopt;
    }
    std::optional<std::string> screen = OfferRecovery(path, work, walk.User());
    kept = screen.value_or(std::string{}) + EntryLines(work);
    return screen;
}

void RecoveryWatch::Begin()
{
    qApp->installEventFilter(this);
    if (path.empty()) {
        TellFault("its folder cannot be written");
    }
}

void RecoveryWatch::End()
{
    qApp->removeEventFilter(this);
    timer.stop();
    writer.waitForDone();
    if (!path.empty()) {
        QFile::remove(Text(path));
    }
    lock.reset();
    path.clear();
}

bool RecoveryWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (IsByThePerson(event->type()) && !timer.isActive() && !path.empty()) {
        timer.start();
    }
    return QObject::eventFilter(watched, event);
}

/// A copy whose program is gone comes first.
void RecoveryWatch::TakeAnyPlace()
{
    for (const bool mustHaveCopy : {true, false}) {
        for (int number = 1; number <= MostPrograms; ++number) {
            if (TakePlace(number, mustHaveCopy)) {
                return;
            }
        }
    }
}

bool RecoveryWatch::TakePlace(int number, bool mustHaveCopy)
{
    const QString stem =
        Text(walk.Desktop().FixedFilesFolder()) + QStringLiteral("/Kordavan recovery %1").arg(number);
    const QString copy = stem + QStringLiteral(".txt");
    if (mustHaveCopy && !QFile::exists(copy)) {
        return false;
    }
    auto place = std::make_unique<QLockFile>(stem + QStringLiteral(".lock"));
    if (!TryLock(*place)) {
        return false;
    }
    lock = std::move(place);
    path = Text(copy);
    return true;
}

/// The copy of entries as at the start would only be a question at the next one.
void RecoveryWatch::Follow()
{
    const std::string entries = EntryLines(work);
    const std::string screen = walk.FormToResume();
    if (screen + entries == kept) {
        return;
    }
    kept = screen + entries;
    if (entries == fresh) {
        writer.start([copy = Text(path)] { QFile::remove(copy); });
        return;
    }
    writer.start([this, content = MakeRecoveryCopy({.Made = walk.Desktop().MomentInWords(), .Screen = screen},
                                                   entries)] {
        const std::string fault = ReplaceFile(path, content);
        if (!fault.empty()) {
            QMetaObject::invokeMethod(
                this, [this, fault] { TellFault(fault); }, Qt::QueuedConnection);
        }
    });
}

void RecoveryWatch::TellFault(const std::string& fault)
{
    if (!hasTold) {
        hasTold = true;
        walk.Front()->ShowNote("No recovery copy of the entries can be kept (" + fault +
                               "). Save your work from time to time.");
    }
}

}  // namespace kordavan
