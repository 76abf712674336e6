#pragma once

#include <QHeaderView>
#include <functional>
#include <vector>

#include "desktop/row_colours.h"
#include "desktop/tokens.h"

namespace sonarelle {

/// How a column of a table stands on the screen.
struct ColumnLook {
    QString short_heading{};                ///< In the narrow step; empty for its caption.
    int narrow = 0, compact = 0, large = 0; ///< Its width in pixels; 0 takes what the others leave.
    bool figures = false;                   ///< To the right, each digit as wide as the others.

    [[nodiscard]] int width(Step step) const;
};

/// The headings of a table, in the colours of its rows.
class RowHeader : public QHeaderView {
public:
    explicit RowHeader(QWidget* parent);

    void set_columns(const std::vector<ColumnLook>& columns) { columns_ = columns; }
    void set_step(Step step);
    void set_colours(const RowColours& colours);
    /// What stands over a column in this step.
    [[nodiscard]] QString heading(int section) const;

    std::function<void()> on_click;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintSection(QPainter* painter, const QRect& area, int section) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<ColumnLook> columns_;
    Step step_ = Step::compact;
    RowColours colours_;
};

} // namespace sonarelle
