#include "desktop/stepped.h"

#include <QWidget>

namespace sonarelle {

void give_step(QWidget& root, Step step) {
    QList<QWidget*> parts = root.findChildren<QWidget*>();
    parts.prepend(&root);
    for (QWidget* part : parts)
        if (auto* stepped = dynamic_cast<Stepped*>(part))
            stepped->set_step(step);
}

} // namespace sonarelle
