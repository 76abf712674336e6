#pragma once

#include <QTextBrowser>
#include <string_view>
#include <vector>

#include "desktop/reader_window.h"

class QListWidget;

namespace sonarelle {

/// The guide's heading under which a window of the station is told of, by its name; empty for one that it doesn't tell
/// of.
[[nodiscard]] QString guide_heading(std::string_view window);

/// The text of the guide, with pictures that fit into its column.
class GuidePage : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

protected:
    QVariant loadResource(int type, const QUrl& name) override;
};

/// The operator's guide: its headings, the text, links that are followed, and the way back.
class GuideReader : public ReaderWindow {
public:
    /// @throws Failure 53 when the file, a path of this machine, can't be read or has no heading.
    explicit GuideReader(const QString& file);

    /// Comes up at what is said of a window, by its name; where nothing is said, at the beginning.
    void open_at(std::string_view window);

private:
    struct Heading {
        QString text;
        int position; ///< In the text.
    };
    /// Where the operator was before he went on.
    struct Place {
        int heading;
        int scroll;
    };

    explicit GuideReader(GuidePage* text);
    void list_headings();
    void follow(const QUrl& link);
    void go_to_heading(int number);
    void go_back();
    void mark(int heading);
    void scroll_to_heading();

    GuidePage* text_;
    QListWidget* contents_;
    std::vector<Heading> headings_;
    int heading_ = 0; ///< The one that the contents mark.
    std::vector<Place> way_;
};

} // namespace sonarelle
