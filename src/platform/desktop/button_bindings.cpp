#include "platform/desktop/button_bindings.h"

#include <QMovie>

#include "platform/desktop/colours.h"
#include "platform/desktop/picture_store.h"
#include "platform/desktop/qt_text.h"

namespace sonarelle {

namespace {

const std::string resting_picture = "bandeau.gif"; // while there is no movie

} // namespace

ButtonBinding::ButtonBinding(Button& button, StudioButton& widget, const DesktopServices& services)
    : Binding{button, widget, services}, button_{button}, face_{widget} {
    connect(&face_, &QAbstractButton::clicked, this, [this] { run([this] { button_.click(); }); });
}

void ButtonBinding::show_state() {
    if (const QString text = caption(); face_.text() != text)
        face_.setText(text);
    face_.setShortcut(access_keys(button_.caption));
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

ImageBinding::ImageBinding(Image& image, StudioButton& widget, const DesktopServices& services)
    : Binding{image, widget, services}, image_{image}, face_{widget} {
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
    : Binding{frame, widget, services}, frame_{frame}, box_{widget} {}

void FrameBinding::show_state() {
    box_.setTitle(caption());
}

QString FrameBinding::caption() const {
    return plain_caption(frame_.caption);
}

MovieBinding::MovieBinding(Movie& movie, QLabel& widget, const DesktopServices& services)
    : Binding{movie, widget, services}, movie_{movie}, label_{widget} {}

MovieBinding::~MovieBinding() = default;

void MovieBinding::show_state() {
    const QString wanted = services().pictures.path(movie_.movie);
    const QString file = wanted.isEmpty() ? services().pictures.path(resting_picture) : wanted;
    if (!file.isEmpty() && file != shown_)
        load(file);
    if (film_ && film_->state() != (movie_.playing ? QMovie::Running : QMovie::NotRunning))
        movie_.playing ? film_->start() : film_->stop();
}

void MovieBinding::load(const QString& file) {
    shown_ = file;
    auto film = std::make_unique<QMovie>(file);
    if (film->isValid()) {
        film_ = std::move(film);
        label_.setMovie(film_.get());
        connect(film_.get(), &QMovie::finished, this, [this] {
            if (movie_.loop)
                film_->start();
        });
    } else if (const QPixmap picture{file}; !picture.isNull()) {
        film_.reset();
        label_.setPixmap(picture);
    }
}

} // namespace sonarelle
