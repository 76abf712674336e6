#include "desktop/reader_look.h"

#include <QFontDatabase>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <vector>

#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr int line_height = 140; // per cent

int pixels(Type type) {
    return scaled(pixels_of(type, Step::compact));
}

Type type_of(int heading) {
    return heading == 0 ? Type::base : heading == 1 ? Type::air_title : Type::deck_title;
}

QTextCharFormat format_of(const QTextFragment& fragment, int heading) {
    QTextCharFormat format = fragment.charFormat();
    format.clearProperty(QTextFormat::FontSizeAdjustment); // which would count from the size of the window
    format.setProperty(QTextFormat::FontPixelSize, pixels(type_of(heading)));
    if (format.fontFixedPitch())
        format.setFontFamilies({QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    if (format.isAnchor()) {
        format.setForeground(studio::focus);
        format.setFontUnderline(true);
    }
    return format;
}

bool is_code(const QTextBlock& block) {
    return block.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage);
}

bool has_picture(const QTextBlock& block) {
    return block.text().contains(QChar::ObjectReplacementCharacter);
}

// Lines of code that belong together stand together; other blocks stand apart.
QTextBlockFormat format_of(const QTextBlock& block) {
    const int heading = block.blockFormat().headingLevel();
    QTextBlockFormat format;
    if (is_code(block))
        format.setBackground(studio::well);
    else if (!has_picture(block))
        format.setLineHeight(line_height, QTextBlockFormat::ProportionalHeight);
    format.setTopMargin(heading > 1 ? 3 * studio::grid : 0);
    format.setBottomMargin(is_code(block) && is_code(block.next()) ? 0 : studio::grid);
    return format;
}

void dress_block(const QTextBlock& block, bool is_in_table) {
    const int heading = block.blockFormat().headingLevel();
    QTextCursor place{block};
    if (!is_in_table)
        place.mergeBlockFormat(format_of(block));
    std::vector<QTextFragment> fragments;
    for (auto at = block.begin(); !at.atEnd(); ++at)
        if (!at.fragment().charFormat().isImageFormat())
            fragments.push_back(at.fragment());
    for (const QTextFragment& fragment : fragments) {
        place.setPosition(fragment.position());
        place.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        place.setCharFormat(format_of(fragment, heading));
    }
}

void dress_table(QTextTable& table) {
    QTextTableFormat format = table.format();
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(studio::line);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(6);
    table.setFormat(format);
}

} // namespace

QFont reader_font() {
    QFont font = studio_font(Type::base);
    font.setWeight(QFont::Normal);
    return font;
}

QString reader_style() {
    return QString{R"(
        QTextEdit, QPlainTextEdit, QListWidget {
            background: %1; border: 1px solid %2; border-radius: %3px; padding: 8px 12px; }
        QTextEdit, QPlainTextEdit { selection-background-color: %4; selection-color: %5; }
        QTextEdit:focus, QPlainTextEdit:focus, QListWidget:focus { border: 2px solid %6; padding: 7px 11px; }
        QLineEdit { background: %7; border: 1px solid %8; border-radius: %9px; padding: 4px 8px; }
        QLineEdit:focus { border: 2px solid %6; padding: 3px 7px; }
        QListWidget::item { border-radius: %10px; padding: 4px; }
        QListWidget::item:selected { background: %11; color: %12; }
        QLabel { color: %13; }
    )"}
        .arg(studio::card.name(), studio::line.name())
        .arg(studio::card_radius)
        .arg(studio::primary.name(), studio::on_primary.name(), studio::focus.name(), studio::well.name(),
             studio::field_line.name())
        .arg(studio::radius)
        .arg(studio::small_radius)
        .arg(studio::selection.name(), studio::text.name(), studio::caption.name());
}

void dress_text(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        dress_block(block, QTextCursor{block}.currentTable() != nullptr);
    for (QTextFrame* frame : document.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame))
            dress_table(*table);
}

} // namespace sonarelle
