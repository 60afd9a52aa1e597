#pragma once

#include <QLabel>
#include <QWidget>
#include <string_view>

class QHBoxLayout;

namespace kordavan {

/// A text that wraps between words and keeps the room of the longest that can stand there.
class NoteLabel : public QLabel {
    Q_OBJECT

public:
    NoteLabel(std::string_view name, std::string_view longest);

    /// Also without a text, which a plain label denies.
    bool hasHeightForWidth() const override { return wordWrap(); }
    int heightForWidth(int width) const override;

private:
    QString longestText;
};

enum class NoteKind { Plain, Alert };

/// A note of the report, hidden while there is nothing to say. Its place is kept, so that what stands below
/// never jumps. An alert has a sign before it.
class NoteLine : public QWidget {
    Q_OBJECT

public:
    /// @param longest  a text that needs as much room as any
    NoteLine(std::string_view name, std::string_view longest, NoteKind kind);

    /// Sets a widget right behind the text, which stays on one line then.
    void Append(QWidget* widget);

    /// Says the text, or hides the line when there is none.
    void Tell(std::string_view text);

    /// Shows the line if its label has a text.
    void Show();

private:
    NoteLabel* label;
    QHBoxLayout* line;
};

}  // namespace kordavan
