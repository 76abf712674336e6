#include "desktop/plain_views.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <QTimer>
#include <algorithm>

#include "accessories/chargement.h"
#include "accessories/propriete.h"
#include "desktop/panel.h"
#include "desktop/progress_strip.h"
#include "desktop/qt_text.h"
#include "desktop/remaining_parts.h"

namespace sonarelle {

namespace {

constexpr QSize least_form{420, 180};
constexpr QSize greatest_form{800, 520}; // beyond it a form scrolls

// What the view hasn't placed stands below, so that nothing is missing.
void add_rest(Dresser& dresser, QVBoxLayout& column) {
    if (QWidget* rest = remaining_parts(dresser))
        column.addWidget(rest);
}

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
    QWidget* form = form_of_parts(dresser);
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

std::unique_ptr<WindowView> properties_view(Propriete& window, const DesktopServices& services) {
    auto view = std::make_unique<WindowView>(window, services, QSize{560, 330});
    Dresser dresser{*view};
    auto* panel = new Panel;
    auto* grid = new QGridLayout{panel};
    grid->setContentsMargins(14, 12, 14, 12);
    grid->setVerticalSpacing(8);
    const StationLabel::Style name{.bold = true, .characters = 16};
    const StationLabel::Style step{.bold = true, .framed = true, .characters = 3, .alignment = Qt::AlignCenter};
    const StationLabel::Style action{.framed = true, .characters = 8, .alignment = Qt::AlignCenter};
    grid->addWidget(dresser.label(window.name_label, name), 0, 0);
    grid->addWidget(dresser.label(window.file_name, {.bold = true, .characters = 28}), 0, 1, 1, 4);
    const std::array<std::pair<Label*, TextBox*>, 5> fields{{{&window.start_label, &window.start},
                                                             {&window.end_label, &window.end},
                                                             {&window.genre_label, &window.genre},
                                                             {&window.volume_label, &window.volume},
                                                             {&window.length_label, &window.length}}};
    int line = 1;
    for (const auto& [label, field] : fields) {
        auto* box = dresser.text_box(*field);
        box->setAccessibleName(to_qt(label->caption));
        grid->addWidget(dresser.label(*label, name), line, 0);
        grid->addWidget(box, line++, 1);
    }
    grid->addWidget(dresser.label(window.start_back, step), 1, 2);
    grid->addWidget(dresser.label(window.mark_start, action), 1, 3);
    grid->addWidget(dresser.label(window.start_forward, step), 1, 4);
    grid->addWidget(dresser.label(window.end_back, step), 2, 2);
    grid->addWidget(dresser.label(window.mark_end, action), 2, 3);
    grid->addWidget(dresser.label(window.end_forward, step), 2, 4);
    grid->addWidget(dresser.label(window.play, action), 3, 3);
    grid->addWidget(dresser.label(window.stop, action), 4, 3);
    grid->addWidget(dresser.progress(window.bar), line, 0, 1, 5);
    auto* column = new QVBoxLayout{&view->content()};
    column->setContentsMargins(10, 10, 10, 10);
    column->addWidget(panel, 1);
    auto* close = dresser.button(window.close);
    auto* save = dresser.button(window.save);
    column->addLayout(row_of({nullptr, save, close}));
    add_rest(dresser, *column);
    return view;
}

} // namespace sonarelle
