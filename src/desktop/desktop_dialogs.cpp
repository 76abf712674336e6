#include "desktop/desktop_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <array>
#include <utility>

#include "desktop/desktop_file_dialog.h"
#include "desktop/qt_text.h"
#include "platform/window.h"

namespace sonarelle {

namespace {

constexpr int least_input_width = 520; // pixels: a path, and the box's title

struct ButtonRow {
    QMessageBox::StandardButton button;
    Answer answer;
};

/// The buttons of a box, in their order on the screen.
std::vector<ButtonRow> buttons_of(Buttons buttons) {
    constexpr ButtonRow ok{QMessageBox::Ok, Answer::ok};
    constexpr ButtonRow cancel{QMessageBox::Cancel, Answer::cancel};
    constexpr ButtonRow yes{QMessageBox::Yes, Answer::yes};
    constexpr ButtonRow no{QMessageBox::No, Answer::no};
    switch (buttons) {
    case Buttons::ok:
        return {ok};
    case Buttons::ok_cancel:
        return {ok, cancel};
    case Buttons::yes_no:
        return {yes, no};
    case Buttons::yes_no_cancel:
        return {yes, no, cancel};
    }
    return {ok};
}

QMessageBox::Icon icon_of(Icon icon) {
    switch (icon) {
    case Icon::none:
        return QMessageBox::NoIcon;
    case Icon::stop:
        return QMessageBox::Critical;
    case Icon::question:
        return QMessageBox::Question;
    case Icon::warning:
        return QMessageBox::Warning;
    case Icon::information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

QColor colour_of(std::int32_t colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

} // namespace

DesktopDialogs::DesktopDialogs(PathForms paths, std::function<QWidget*(Window&)> widget_of)
    : paths_{std::move(paths)},
      widget_of_{std::move(widget_of)} {}

Answer DesktopDialogs::MsgBox(const MessageBox& box) {
    QMessageBox dialog{icon_of(box.icon), to_qt(box.title), to_qt(box.text), QMessageBox::NoButton,
                       QApplication::activeWindow()};
    dialog.setTextFormat(Qt::PlainText);
    dialog.setObjectName("MsgBox");
    const std::vector<ButtonRow> rows = buttons_of(box.buttons);
    for (const ButtonRow& row : rows)
        dialog.addButton(row.button);
    dialog.setDefaultButton(rows[static_cast<std::size_t>(box.default_button - 1) % rows.size()].button);
    // Escape leaves things as they are.
    dialog.setEscapeButton(rows.back().button);
    const int pressed = dialog.exec();
    for (const ButtonRow& row : rows)
        if (row.button == pressed)
            return row.answer;
    return rows.back().answer;
}

std::optional<std::string> DesktopDialogs::InputBox(const sonarelle::InputBox& box) {
    QInputDialog dialog{QApplication::activeWindow()};
    dialog.setObjectName("InputBox");
    dialog.setWindowTitle(to_qt(box.title));
    dialog.setLabelText(to_qt(box.prompt));
    dialog.setTextValue(to_qt(box.preset));
    dialog.resize(dialog.sizeHint().expandedTo({least_input_width, 0}));
    return dialog.exec() == QDialog::Accepted ? std::optional{from_qt(dialog.textValue())} : std::nullopt;
}

ChosenFile DesktopDialogs::open_file(const FileDialog& dialog) {
    return choose_file(dialog, QFileDialog::AcceptOpen);
}

ChosenFile DesktopDialogs::save_file(const FileDialog& dialog) {
    return choose_file(dialog, QFileDialog::AcceptSave);
}

ChosenFile DesktopDialogs::choose_file(const FileDialog& asked, QFileDialog::AcceptMode mode) {
    DesktopFileDialog dialog{paths_, QApplication::activeWindow()};
    dialog.setWindowTitle(to_qt(asked.title));
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setNameFilters(name_filters(asked.filter));
    dialog.begin_at(asked.folder, asked.file_name);
    if (dialog.exec() != QDialog::Accepted)
        return {true, asked.file_name};
    return {false, dialog.chosen()};
}

std::optional<std::int32_t> DesktopDialogs::choose_colour(std::int32_t preset) {
    const QColor colour =
        QColorDialog::getColor(colour_of(preset), QApplication::activeWindow(), {}, QColorDialog::DontUseNativeDialog);
    if (!colour.isValid())
        return {};
    return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

std::optional<Font> DesktopDialogs::choose_font(const Font& preset) {
    QFont first{to_qt(preset.family)};
    if (preset.points > 0)
        first.setPointSizeF(preset.points);
    first.setBold(preset.bold);
    first.setItalic(preset.italic);
    bool chosen = false;
    const QFont font =
        QFontDialog::getFont(&chosen, first, QApplication::activeWindow(), {}, QFontDialog::DontUseNativeDialog);
    if (!chosen)
        return {};
    return Font{from_qt(font.family()), font.pointSizeF(), font.bold(), font.italic()};
}

void DesktopDialogs::show_modal(Window& window) {
    QWidget* widget = widget_of_(window);
    if (widget == nullptr)
        return;
    widget->setWindowModality(Qt::ApplicationModal);
    window.show();
    while (window.visible && !QCoreApplication::closingDown())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    widget->hide();
    widget->setWindowModality(Qt::NonModal);
}

QStringList name_filters(const std::string& filter) {
    const QStringList parts = to_qt(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString caption = parts[i].trimmed();
        if (const auto bracket = caption.indexOf('('); bracket >= 0)
            caption = caption.left(bracket).trimmed();
        filters += caption + " (" + parts[i + 1].split(';').join(' ') + ")";
    }
    return filters;
}

} // namespace sonarelle
