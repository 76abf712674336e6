#include "desktop/button_bindings.h"

#include <QImageReader>
#include <QKeyEvent>
#include <QMovie>
#include <algorithm>
#include <array>

#include "desktop/colours.h"
#include "desktop/picture_store.h"
#include "desktop/qt_text.h"

namespace sonarelle {

namespace {

const std::string resting_picture = "bandeau.gif"; // while there is no movie

/// The quiet one of the same name: what stands in for a movie that can't be shown.
std::string picture_beside(const std::string& movie) {
    return movie.substr(0, movie.rfind('.')) + ".gif";
}

struct Plate {
    QColor ground;
    QColor ink;
};

Plate plate_of(Colour ink, Colour ground) {
    return {ground_for(ink, ground, studio::control), to_qt(ink, studio::text)};
}

} // namespace

ButtonBinding::ButtonBinding(Button& button, StudioButton& widget, const DesktopServices& services)
    : Binding{button, widget, services},
      button_{button},
      face_{widget} {
    connect(&face_, &QAbstractButton::clicked, this, [this] { run([this] { button_.click(); }); });
}

void ButtonBinding::show_state() {
    if (const QString text = caption(); face_.text() != text)
        face_.setText(text);
    const QKeySequence letter = access_keys(button_.caption);
    face_.setShortcut(letter);
    face_.set_marked(letter.isEmpty() ? QString{} : to_qt(button_.caption));
    face_.set_pictures(services().pictures.faces(button_.picture));
    face_.set_face(face());
}

QString ButtonBinding::caption() const {
    return plain_caption(button_.caption);
}

// Lighter under the pointer, darker while it is down, and at any time with an ink that reads on it.
StudioButton::Face ButtonBinding::face() const {
    const Plate rest = plate_of(button_.fore_colour, button_.back_colour);
    Plate over = rest;
    Plate down = rest;
    if (button_.kind() == ControlKind::graphic_button) {
        const auto& graphic = static_cast<const GraphicButton&>(button_);
        over = plate_of(graphic.fore_colour_over, graphic.back_colour_over);
        down = plate_of(graphic.fore_colour_down, graphic.back_colour_down);
    }
    over.ground = mixed(over.ground, Qt::white, 0.10);
    down.ground = mixed(down.ground, Qt::black, 0.35);
    return {rest.ground, legible(rest.ink, rest.ground), over.ground, legible(over.ink, over.ground),
            down.ground, legible(down.ink, down.ground)};
}

bool ButtonBinding::eventFilter(QObject* object, QEvent* event) {
    const bool is_key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    const bool is_space = is_key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    if (!is_space || !button_.refuses_space || !button_.refuses_space())
        return Binding::eventFilter(object, event);
    face_.setDown(false); // it may have been pressed while it was free
    return true;
}

ImageBinding::ImageBinding(Image& image, StudioButton& widget, const DesktopServices& services)
    : Binding{image, widget, services},
      image_{image},
      face_{widget} {
    connect(&face_, &QAbstractButton::clicked, this, [this] { run([this] { image_.click(); }); });
}

void ImageBinding::show_state() {
    face_.set_pictures(services().pictures.faces(image_.picture));
}

LampBinding::LampBinding(Image& image, StudioButton& widget, const DesktopServices& services)
    : Binding{image, widget, services} {
    connect(&widget, &QAbstractButton::clicked, this, [this, &image] { run([&image] { image.click(); }); });
}

FrameBinding::FrameBinding(Frame& frame, QGroupBox& widget, const DesktopServices& services)
    : Binding{frame, widget, services},
      frame_{frame},
      box_{widget} {}

void FrameBinding::show_state() {
    box_.setTitle(caption());
}

QString FrameBinding::caption() const {
    return plain_caption(frame_.caption);
}

MovieBinding::MovieBinding(Movie& movie, QLabel& widget, const DesktopServices& services)
    : Binding{movie, widget, services},
      movie_{movie},
      label_{widget} {}

MovieBinding::~MovieBinding() = default;

void MovieBinding::show_state() {
    if (const std::string& wanted = movie_.movie; shown_ != wanted || !has_picture_) {
        shown_ = wanted;
        has_picture_ = std::ranges::any_of(std::array{wanted, picture_beside(wanted), resting_picture},
                                           [this](const std::string& name) { return load(name); });
    }
    if (film_ && film_->state() != (movie_.playing ? QMovie::Running : QMovie::NotRunning))
        movie_.playing ? film_->start() : film_->stop();
}

bool MovieBinding::load(const std::string& name) {
    const QString file = services().pictures.path(name);
    if (file.isEmpty())
        return false;
    auto film = std::make_unique<QMovie>(file);
    if (film->isValid() && QImageReader{file}.supportsAnimation()) {
        show_film(std::move(film));
        return true;
    }
    const QPixmap picture{file};
    if (picture.isNull())
        return false;
    label_.setPixmap(picture);
    film_.reset();
    return true;
}

void MovieBinding::show_film(std::unique_ptr<QMovie> film) {
    film->jumpToFrame(0); // which is seen until it is played
    label_.setMovie(film.get());
    film_ = std::move(film);
    connect(film_.get(), &QMovie::finished, this, [this] {
        if (movie_.loop)
            film_->start();
    });
}

} // namespace sonarelle
