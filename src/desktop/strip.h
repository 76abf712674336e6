#pragma once

#include <QWidget>

namespace sonarelle {

/// The ground of a line along an edge of a window: menus at the top, state at the foot.
class Strip : public QWidget {
public:
    explicit Strip(QWidget* parent = nullptr);
};

} // namespace sonarelle
