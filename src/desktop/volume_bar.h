#pragma once

#include <QWidget>

namespace sonarelle {

/// How loud a deck is, where its slider is hidden: the slider's way and filling, without a knob.
class VolumeBar : public QWidget {
public:
    explicit VolumeBar(QWidget* parent = nullptr);

    /// 0 to 1.
    void set_share(double share);
    [[nodiscard]] QSize sizeHint() const override { return {32, 60}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double share_ = 1;
};

} // namespace sonarelle
