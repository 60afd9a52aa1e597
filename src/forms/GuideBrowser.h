#pragma once

#include <QTextBrowser>

namespace kordavan {

/// Shows the pages of the user guide, which is built into the program. Pictures fit the width of the window,
/// and links lead to headings as well as to pages.
class GuideBrowser : public QTextBrowser {
    Q_OBJECT

public:
    GuideBrowser();

    /// Shows a page, or a place in it, by its link.
    void Open(const QString& link);

    /// Letters and pictures larger or smaller; every step is a tenth of the usual size.
    void ZoomBy(int steps);
    void ZoomToUsual();

    /// Goes on to the next place that has the words, or back to the one before; round the end of the page.
    /// @return  whether the page has them at all
    bool Find(const QString& words, QTextDocument::FindFlags flags);

    /// What a heading is called in links: small letters and digits, with hyphens for blanks.
    static QString AnchorOf(const QString& heading);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void ShowPlace(const QUrl& place);
    void SetOut();
    void FitPictures();
    void FinishLayout();
    void ApplyZoom();

    /// The place in the text at the top of what is seen, and going there.
    int ReadingPlace() const;
    void ReadOnAt(int place);

    qreal usualPointSize = 0;
    int zoomSteps = 0;
};

}  // namespace kordavan
