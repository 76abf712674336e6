#pragma once

#include <QObject>
#include <QStringList>

#include "desktop/desktop_services.h"
#include "platform/control.h"

class QMimeData;
class QWidget;

namespace sonarelle {

/// Hands the files that are dropped on a control's widgets to the control, in the station's form of their paths. One
/// that the station can't hold or reach is refused by name, and with it the whole drop.
class FileDrops : public QObject {
public:
    FileDrops(Control& control, const DesktopServices& services)
        : control_{control},
          services_{services} {}

    /// From now on files can be dropped on this widget, too.
    void take_on(QWidget& widget);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] bool takes(const QMimeData* data) const;
    void hand_over(const QStringList& files);

    Control& control_;
    const DesktopServices& services_;
};

} // namespace sonarelle
