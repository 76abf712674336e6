#include "desktop/plain_views.h"

#include <QBoxLayout>
#include <QEvent>
#include <QScrollArea>
#include <QTimer>
#include <algorithm>

#include "accessories/chargement.h"
#include "desktop/remaining_parts.h"

namespace sonarelle {

namespace {

constexpr QSize least_form{420, 180};
constexpr QSize greatest_form{800, 520}; // beyond it a form scrolls

/// Grows with texts that come when it is made already, so that no button hides behind a scroll bar.
class FormWindow : public WindowView {
public:
    using WindowView::WindowView;

    void watch(QScrollArea& area) {
        area_ = &area;
        area.widget()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (area_ != nullptr && object == area_->widget() && event->type() == QEvent::LayoutRequest)
            QTimer::singleShot(0, this, [this] { grow(); });
        return WindowView::eventFilter(object, event);
    }

private:
    void grow() {
        const int missing = area_->widget()->sizeHint().height() - area_->viewport()->height();
        if (missing > 0 && height() < greatest_form.height())
            resize(width(), std::min(height() + missing, greatest_form.height()));
    }

    QScrollArea* area_ = nullptr;
};

} // namespace

std::unique_ptr<WindowView> form_view(Window& window, const DesktopServices& services) {
    auto view = std::make_unique<FormWindow>(window, services, least_form);
    Dresser dresser{*view};
    QWidget* form = form_of_parts(dresser, window.default_button);
    auto* area = new QScrollArea;
    area->setWidget(form);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    // The window draws what is behind its parts.
    area->viewport()->setAutoFillBackground(false);
    form->setAutoFillBackground(false);
    auto* column = new QVBoxLayout{&view->content()};
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(area);
    view->setMinimumSize(form->sizeHint().expandedTo(least_form).boundedTo(greatest_form));
    view->resize(view->minimumSize());
    view->watch(*area);
    return view;
}

std::unique_ptr<WindowView> splash_view(Chargement& window, const DesktopServices& services) {
    auto view = std::make_unique<WindowView>(window, services, QSize{500, 350});
    Dresser dresser{*view};
    auto* picture = dresser.image(window.picture, "Sonarelle");
    picture->set_look(ButtonLook::picture);
    picture->setFocusPolicy(Qt::NoFocus);
    picture->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* column = new QVBoxLayout{&view->content()};
    column->setContentsMargins(3, 3, 3, 3);
    column->addWidget(picture);
    view->setWindowFlag(Qt::SplashScreen);
    return view;
}

} // namespace sonarelle
