#include "desktop/input_box.h"

#include <QBoxLayout>
#include <QLineEdit>

#include "desktop/qt_text.h"
#include "desktop/text_size.h"

namespace sonarelle {

InputBoxView::InputBoxView(const InputBox& box, const QString& words, QWidget* over)
    : BoxView{to_qt(box.title), to_qt(box.prompt), {.sign = Sign::ask}, over},
      field_{new QLineEdit{words}} {
    setObjectName("InputBox");
    field_->setAccessibleName(text().section('\n', 0, 0).trimmed());
    field_->setFont(studio_font(Type::medium));
    field_->setMinimumHeight(scaled(lengths_of(Step::compact).control));
    column().addWidget(field_);
    StudioButton& take = add_button("OK", Accent::primary);
    set_default(take);
    connect(&take, &QAbstractButton::clicked, this, &QDialog::accept);
    connect(&add_button("Annuler", Accent::none), &QAbstractButton::clicked, this, &QDialog::reject);
    mark_letters();
    field_->setFocus();
    field_->selectAll();
}

} // namespace sonarelle
