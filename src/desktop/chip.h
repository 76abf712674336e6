#pragma once

#include <QWidget>

#include "desktop/stepped.h"

namespace sonarelle {

/// A word that holds for now, in a frame of its own.
class Chip : public QWidget, public Stepped {
public:
    explicit Chip(const QString& word);

    void set_step(Step step) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString word_;
};

} // namespace sonarelle
