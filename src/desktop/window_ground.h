#pragma once

#include <QColor>
#include <QPixmap>

class QWidget;

namespace sonarelle {

class PictureStore;
class Window;

/// What lies behind the parts of a window: its colour, or its picture.
class WindowGround {
public:
    /// Takes the window's colours and picture as they are, and tells the content and the panels in it what text stands
    /// on there, as their palette's window colour.
    void show(const Window& window, PictureStore& pictures, QWidget& content);

    [[nodiscard]] const QColor& colour() const { return colour_; }
    /// Null where the colour is all.
    [[nodiscard]] const QPixmap& picture() const { return picture_; }

private:
    QColor colour_;
    QPixmap picture_;
    QColor mean_; ///< The picture's.
};

} // namespace sonarelle
