#pragma once

#include <QColor>

namespace sonarelle {

/// What a row of the list is to the operator.
enum class RowState { plain, air, next, missing };

/// The colours of a table's rows, all of which read, on the ground and in the ink that the station gives the table.
class RowColours {
public:
    struct Look {
        QColor ground, ink, sign;
        QColor edge; ///< Of the selection, seen on this ground.
    };

    RowColours(const QColor& ground, const QColor& ink);

    [[nodiscard]] const QColor& ground() const { return ground_; }
    [[nodiscard]] const QColor& ink() const { return ink_; }
    /// Of the headings.
    [[nodiscard]] QColor head() const { return shaded(0.11, 0.05); }
    [[nodiscard]] QColor heading() const;
    [[nodiscard]] QColor line() const { return shaded(0.13, 0.065); }

    /// The states keep their grounds while they are selected: an edge tells the selection.
    [[nodiscard]] Look look(RowState state, bool selected, bool under_pointer) const;

private:
    [[nodiscard]] QColor shaded(double on_light, double on_dark) const;
    [[nodiscard]] QColor ground_of(RowState state, bool selected) const;
    [[nodiscard]] QColor ink_of(RowState state, bool selected) const;

    QColor ground_;
    QColor ink_;
    bool dark_;
};

} // namespace sonarelle
