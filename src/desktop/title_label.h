#pragma once

#include <QTimer>

#include "desktop/station_label.h"

namespace sonarelle {

/// A title as it was before the station began to turn it, one character every half second.
class TurnedTitle {
public:
    /// Takes what the station shows; true when it is the same title, turned on.
    bool take(const QString& text);
    [[nodiscard]] const QString& still() const { return still_; }

private:
    QString still_;
};

/// The title of a deck: the name of its file, and of a deck without one what the station says. One that fits
/// stands still, whatever the station turns; one that is cut turns while the station turns it, by pixels, and ends in
/// dots otherwise.
class TitleLabel : public StationLabel {
public:
    explicit TitleLabel(const Style& style, QWidget* parent = nullptr);

    void set_text(const QString& text) override;
    /// The name of the file that it speaks of; empty leaves it to the station.
    void set_file(const QString& name);
    /// What stands there, or turns.
    [[nodiscard]] QString shown() const;
    [[nodiscard]] QString spoken() const override { return shown(); }
    [[nodiscard]] bool is_turning() const { return step_.isActive(); }

protected:
    [[nodiscard]] QString whole() const override { return shown(); }
    void paint_text(QPainter& painter, const QRect& area) const override;

private:
    [[nodiscard]] bool fits(int width) const;
    void turn_on();

    TurnedTitle title_;
    QString file_;
    QTimer step_; ///< Goes while the title turns and is cut.
    QTimer rest_; ///< Until the station has missed a turn.
    int shift_ = 0;
};

} // namespace sonarelle
