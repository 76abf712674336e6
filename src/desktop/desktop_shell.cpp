#include "desktop/desktop_shell.h"

#include <QClipboard>
#include <QGuiApplication>
#include <utility>

#include "desktop/qt_text.h"
#include "desktop/reader_guide.h"
#include "desktop/reader_journal.h"

namespace sonarelle {

DesktopShell::DesktopShell(Shell& machine, Disk& disk, QString guide)
    : machine_{machine},
      disk_{disk},
      guide_{std::move(guide)} {}

DesktopShell::~DesktopShell() = default;

void DesktopShell::show_guide(std::string_view window) {
    if (guide_reader_ == nullptr)
        guide_reader_ = std::make_unique<GuideReader>(guide_);
    guide_reader_->open_at(window);
}

void DesktopShell::show_journal(std::string_view path) {
    if (journal_reader_ == nullptr)
        journal_reader_ = std::make_unique<JournalReader>(disk_, std::string{path});
    journal_reader_->open();
}

std::string DesktopShell::clipboard_text() {
    return from_qt(QGuiApplication::clipboard()->text());
}

void DesktopShell::set_clipboard_text(std::string_view text) {
    QGuiApplication::clipboard()->setText(to_qt(std::string{text}));
}

} // namespace sonarelle
