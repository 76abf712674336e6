#include "desktop/desktop_shell.h"

#include <QClipboard>
#include <QGuiApplication>

#include "desktop/qt_text.h"

namespace sonarelle {

std::string DesktopShell::clipboard_text() {
    return from_qt(QGuiApplication::clipboard()->text());
}

void DesktopShell::set_clipboard_text(std::string_view text) {
    QGuiApplication::clipboard()->setText(to_qt(std::string{text}));
}

} // namespace sonarelle
