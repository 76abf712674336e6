#include "desktop/desktop_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <utility>

#include "desktop/desktop_file_dialog.h"
#include "desktop/input_box.h"
#include "desktop/qt_text.h"
#include "platform/window.h"

namespace sonarelle {

namespace {

QColor colour_of(std::int32_t colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

} // namespace

DesktopDialogs::DesktopDialogs(PathForms paths, std::function<QWidget*(Window&)> widget_of, NameOnAir name_on_air)
    : paths_{std::move(paths)},
      widget_of_{std::move(widget_of)},
      name_on_air_{std::move(name_on_air)} {
    verdict_.setSingleShot(true);
}

Answer DesktopDialogs::MsgBox(const MessageBox& box) {
    if (verdict_.isActive() && (box.icon == Icon::stop || box.icon == Icon::warning))
        typed_.is_refused = true;
    MessageBoxView view{box, window_below_a_box(), name_on_air_};
    view.exec();
    return view.answer();
}

std::optional<std::string> DesktopDialogs::InputBox(const sonarelle::InputBox& box) {
    const bool is_asked_again = typed_.is_refused && typed_.title == box.title && typed_.prompt == box.prompt;
    InputBoxView view{box, is_asked_again ? typed_.words : to_qt(box.preset)};
    if (view.exec() != QDialog::Accepted)
        return std::nullopt;
    typed_ = {box.title, box.prompt, view.field().text()};
    verdict_.start(0);
    return from_qt(typed_.words);
}

ChosenFile DesktopDialogs::open_file(const FileDialog& dialog) {
    return choose_file(dialog, QFileDialog::AcceptOpen);
}

ChosenFile DesktopDialogs::save_file(const FileDialog& dialog) {
    return choose_file(dialog, QFileDialog::AcceptSave);
}

ChosenFile DesktopDialogs::choose_file(const FileDialog& asked, QFileDialog::AcceptMode mode) {
    DesktopFileDialog dialog{paths_, window_below_a_box()};
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
        QColorDialog::getColor(colour_of(preset), window_below_a_box(), {}, QColorDialog::DontUseNativeDialog);
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
    const QFont font = QFontDialog::getFont(&chosen, first, window_below_a_box(), {}, QFontDialog::DontUseNativeDialog);
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
