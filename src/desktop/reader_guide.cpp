#include "desktop/reader_guide.h"

#include <QAbstractTextDocumentLayout>
#include <QBoxLayout>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <algorithm>
#include <array>

#include "desktop/qt_text.h"
#include "desktop/reader_look.h"
#include "desktop/text_size.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr int contents_width = 230;
constexpr int picture_width = 560;
constexpr int around_pictures = 110; // margins, and a scroll bar

struct Topic {
    std::string_view window;
    const char* heading;
};

constexpr std::array topics{
    Topic{"Antenne_FM", "Le bureau"},
    Topic{"Liste_son", "La fenêtre liste"},
    Topic{"mini_lecteur", "Le mini lecteur"},
    Topic{"liste", "L'ordre aléatoire et les insertions"},
    Topic{"Propriete", "Les propriétés d'un titre"},
    Topic{"Form_options", "Les réglages"},
    Topic{"err_form", "Les avertissements"},
    Topic{"fsauve", "Les listes"},
    Topic{"frmAbout", "Commencer"},
    Topic{"vbplus", "Commencer"},
};

QString text_of(const QString& file) {
    QFile guide{file};
    if (!guide.open(QIODevice::ReadOnly))
        throw Failure{FailureNumber::file_not_found, from_qt(file)};
    return QString::fromUtf8(guide.readAll());
}

/// What a link names a heading by: its letters in lower case, with a dash for a blank.
QString anchor_of(const QString& heading) {
    QString anchor;
    for (const QChar c : heading.toLower())
        if (c.isLetterOrNumber() || c == '-' || c == '_')
            anchor += c;
        else if (c.isSpace())
            anchor += '-';
    return anchor;
}

} // namespace

QString guide_heading(std::string_view window) {
    const auto* found = std::ranges::find(topics, window, &Topic::window);
    return found == topics.end() ? QString{} : found->heading;
}

QVariant GuidePage::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource)
        return QTextBrowser::loadResource(type, name);
    QImage picture{document()->baseUrl().resolved(name).toLocalFile()};
    const int width = std::min(picture.width(), picture_width);
    if (picture.isNull())
        return {};
    picture = picture.scaledToWidth(qRound(width * devicePixelRatioF()), Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatioF());
    return picture;
}

GuideReader::GuideReader(const QString& file)
    : GuideReader{new GuidePage} {
    const QString text = text_of(file);
    text_->document()->setBaseUrl(QUrl::fromLocalFile(QFileInfo{file}.absoluteFilePath()));
    text_->document()->setMarkdown(text);
    dress_text(*text_->document());
    list_headings();
    if (headings_.empty())
        throw Failure{FailureNumber::file_not_found, from_qt(file)};
}

GuideReader::GuideReader(GuidePage* text)
    : ReaderWindow{"Aide", searched_text(*text)},
      text_{text},
      contents_{new QListWidget{this}} {
    setObjectName("guide");
    text_->setAccessibleName("Guide de l'opérateur");
    text_->setOpenLinks(false);
    contents_->setAccessibleName("Sommaire");
    contents_->setFixedWidth(scaled(contents_width));
    contents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // a long heading is cut
    setMinimumWidth(scaled(contents_width) + picture_width + around_pictures);
    page().addWidget(contents_);
    page().addWidget(text_, 1);
    connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { follow(link); });
    connect(contents_, &QListWidget::currentRowChanged, this, [this](int row) { go_to_heading(row); });
    connect(contents_, &QListWidget::itemClicked, this, [this] { scroll_to_heading(); });
    connect(contents_, &QListWidget::itemActivated, this, [this] { text_->setFocus(); });
    connect(new QShortcut{Qt::ALT | Qt::Key_Left, this}, &QShortcut::activated, this, [this] { go_back(); });
}

void GuideReader::list_headings() {
    const QSignalBlocker quiet{contents_};
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next())
        if (const int level = block.blockFormat().headingLevel(); level > 0) {
            headings_.push_back({block.text(), block.position()});
            contents_->addItem(QString{std::max(0, level - 2) * 4, ' '} + block.text());
        }
}

void GuideReader::open_at(std::string_view window) {
    tell("Alt+← : retour    Ctrl+F : rechercher    Échap : fermer");
    open();
    text_->setFocus();
    const auto found = std::ranges::find(headings_, guide_heading(window), &Heading::text);
    mark(found == headings_.end() ? 0 : static_cast<int>(found - headings_.begin()));
    scroll_to_heading();
    way_.clear();
}

void GuideReader::follow(const QUrl& link) {
    const QString name = link.fragment(QUrl::FullyDecoded);
    const auto found = std::ranges::find(headings_, name, [](const Heading& h) { return anchor_of(h.text); });
    if (found == headings_.end())
        tell("Ce lien mène hors du guide : " + link.toString());
    else
        go_to_heading(static_cast<int>(found - headings_.begin()));
}

void GuideReader::go_to_heading(int number) {
    way_.push_back({heading_, text_->verticalScrollBar()->value()});
    mark(number);
    scroll_to_heading();
}

void GuideReader::go_back() {
    if (way_.empty())
        return;
    mark(way_.back().heading);
    text_->verticalScrollBar()->setValue(way_.back().scroll);
    way_.pop_back();
}

void GuideReader::mark(int heading) {
    const QSignalBlocker quiet{contents_};
    heading_ = heading;
    contents_->setCurrentRow(heading);
}

void GuideReader::scroll_to_heading() {
    const QTextDocument& document = *text_->document();
    const QAbstractTextDocumentLayout& layout = *document.documentLayout();
    const QTextBlock block = document.findBlock(headings_.at(static_cast<std::size_t>(heading_)).position);
    static_cast<void>(layout.documentSize()); // lays it out to its end
    text_->verticalScrollBar()->setValue(qRound(layout.blockBoundingRect(block).top()));
    text_->setTextCursor(QTextCursor{block}); // from which a search goes on, and the Tab key to the next link
}

} // namespace sonarelle
