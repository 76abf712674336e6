#include "platform/dialogs.h"

#include "platform/application.h"

namespace sonarelle {

void show_box(Dialogs& dialogs, const std::string& text, Icon icon) {
    dialogs.MsgBox({.text = text, .title = std::string{application_title}, .icon = icon});
}

} // namespace sonarelle
