#include "desktop/strip.h"

#include "desktop/colours.h"

namespace sonarelle {

Strip::Strip(QWidget* parent)
    : QWidget{parent} {
    setMouseTracking(true); // or the window would hear of no moves between its parts
    setAutoFillBackground(true);
    QPalette told = palette();
    told.setColor(QPalette::Window, studio::bar);
    setPalette(told);
}

} // namespace sonarelle
