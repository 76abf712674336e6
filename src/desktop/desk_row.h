#pragma once

#include <QWidget>

#include "desktop/stepped.h"

class QHBoxLayout;

namespace sonarelle {

/// A row of the desk: parts of one width beside each other, as high as its step says.
class DeskRow : public QWidget, public Stepped {
public:
    /// `height` null: it takes what height there is.
    explicit DeskRow(int StepLengths::*height = nullptr);

    void add(QWidget* part);
    void set_step(Step step) override;

private:
    int StepLengths::*height_;
    QHBoxLayout* row_;
};

} // namespace sonarelle
