#include "desktop/desk_row.h"

#include <QBoxLayout>

#include "desktop/text_size.h"

namespace sonarelle {

DeskRow::DeskRow(int StepLengths::*height)
    : height_{height},
      row_{new QHBoxLayout{this}} {
    setMouseTracking(true); // or the window would hear of no moves between its parts
    set_step(Step::compact);
}

// However much a part asks for, all have one width.
void DeskRow::add(QWidget* part) {
    part->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row_->addWidget(part, 1);
}

void DeskRow::set_step(Step step) {
    const StepLengths& lengths = lengths_of(step);
    row_->setContentsMargins(lengths.margin, 0, lengths.margin, 0);
    row_->setSpacing(lengths.margin);
    if (height_ != nullptr)
        setFixedHeight(scaled(lengths.*height_));
}

} // namespace sonarelle
