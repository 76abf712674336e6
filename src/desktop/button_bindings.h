#pragma once

#include <QGroupBox>
#include <QLabel>
#include <memory>

#include "desktop/binding.h"
#include "desktop/studio_button.h"
#include "platform/controls.h"

class QMovie;

namespace sonarelle {

/// Plain and graphic buttons alike.
class ButtonBinding : public Binding {
public:
    ButtonBinding(Button& button, StudioButton& widget, const DesktopServices& services);

protected:
    void show_state() override;
    [[nodiscard]] QString caption() const override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] StudioButton::Face face() const;

    Button& button_;
    StudioButton& face_;
};

/// A picture that can be pressed.
class ImageBinding : public Binding {
public:
    ImageBinding(Image& image, StudioButton& widget, const DesktopServices& services);

protected:
    void show_state() override;

private:
    Image& image_;
    StudioButton& face_;
};

/// A picture that stands beside an option and chooses it. It is shown as the option's lamp, which somebody else lights.
class LampBinding : public Binding {
public:
    LampBinding(Image& image, StudioButton& widget, const DesktopServices& services);

protected:
    void show_state() override {}
};

class FrameBinding : public Binding {
public:
    FrameBinding(Frame& frame, QGroupBox& widget, const DesktopServices& services);

protected:
    void show_state() override;
    [[nodiscard]] QString caption() const override;

private:
    Frame& frame_;
    QGroupBox& box_;
};

/// Pictures that move and pictures that don't; where the file is neither, the GIF of its name beside it, and without
/// one the banner that comes with the program.
class MovieBinding : public Binding {
public:
    MovieBinding(Movie& movie, QLabel& widget, const DesktopServices& services);
    ~MovieBinding() override;

protected:
    void show_state() override;

private:
    /// False where the file can't be shown.
    bool load(const std::string& name);
    void show_film(std::unique_ptr<QMovie> film);

    Movie& movie_;
    QLabel& label_;
    std::string shown_;
    bool has_picture_ = false;
    std::unique_ptr<QMovie> film_;
};

} // namespace sonarelle
