#pragma once

#include <QWidget>

#include "desktop/studio_button.h"

class QBoxLayout;

namespace sonarelle {

/// A card on which parts of a window stand; it is lit for the air, for what comes next and for a trouble.
class Panel : public QWidget {
public:
    explicit Panel(QWidget* parent = nullptr);

    void set_accent(Accent accent);
    [[nodiscard]] Accent accent() const { return accent_; }
    /// The plate's colour at rest. The parts on it find what they stand on as their palette's window colour.
    void set_plate(const QColor& plate);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void tell_ground();
    [[nodiscard]] QColor card() const;

    Accent accent_ = Accent::none;
    QColor plate_;
};

/// A lamp: lit in its colour, or dark.
class Lamp : public QWidget, public Stepped {
public:
    explicit Lamp(QWidget* parent = nullptr);

    void set_accent(Accent accent);
    void set_step(Step step) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Accent accent_ = Accent::none;
};

/// Rows and columns without margins.
[[nodiscard]] QBoxLayout* row_of(std::initializer_list<QWidget*> widgets, int spacing = 6);
[[nodiscard]] QBoxLayout* column_of(std::initializer_list<QWidget*> widgets, int spacing = 6);

} // namespace sonarelle
