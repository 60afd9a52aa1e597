#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "records/RecoveryCopy.h"

class QLockFile;

namespace kordavan {

class Walk;

/// Keeps a copy of all entries beside the files of fixed name while the program runs, so that a crash or a
/// power cut loses some seconds of typing at most. The copy is gone after a clean exit.
///
/// Programs that run at once have a copy each, behind a lock that ends with its program however that ends.
class RecoveryWatch : public QObject {
    Q_OBJECT

public:
    RecoveryWatch(Walk& walk, const WorkAtHand& work);
    ~RecoveryWatch() override;

    /// Takes a copy that was left behind, or a place for a new one, and asks whether the entries of the
    /// former are wanted. To be called on the work as it is before any entry.
    /// @return the name of the form to go on with; none without recovered entries
    std::optional<std::string> Offer();

    /// From now on the copy follows the entries.
    void Begin();

    /// Ends it for good: the work is done, or given up.
    void End();

    /// How long after a key or click the entries are written.
    void SetDelay(std::chrono::milliseconds delay) { timer.setInterval(delay); }

protected:
    /// Only what the person does changes entries.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool TakePlace(int number, bool mustHaveCopy);
    void TakeAnyPlace();
    void Follow();
    void TellFault(const std::string& fault);

    Walk& walk;
    WorkAtHand work;
    std::unique_ptr<QLockFile> lock;
    std::string path;      // of the copy; empty without a place for one
    std::string fresh;     // the entries before any is made
    std::string kept;      // form and entries as they were written last
    bool hasTold = false;  // that there is no copy
    QTimer timer;
    QThreadPool writer;  // flushing to disk takes longer than a key may
};

}  // namespace kordavan
