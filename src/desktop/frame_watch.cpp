#include "desktop/frame_watch.h"

#include <QTimer>
#include <QWidget>

namespace sonarelle {

namespace {

constexpr int interval = 50; // ms
constexpr int most_looks = 40;

} // namespace

void watch_for_frame(QWidget& window, std::function<void()> look) {
    auto* watch = new QTimer{&window};
    QObject::connect(watch, &QTimer::timeout, &window, [&window, watch, look = std::move(look), looks = 0]() mutable {
        look();
        if (window.frameGeometry() != window.geometry() || ++looks == most_looks)
            watch->deleteLater();
    });
    watch->start(interval);
}

} // namespace sonarelle
