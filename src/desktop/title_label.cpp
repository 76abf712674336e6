#include "desktop/title_label.h"

#include <QPainter>

namespace sonarelle {

namespace {

constexpr int step_interval = 50; // ms
constexpr int pixels_a_step = 2;
constexpr int turn_missed = 1200; // ms; the station turns a title every 500

} // namespace

// A title of even length repeats its first character when it begins to turn.
bool TurnedTitle::take(const QString& text) {
    for (const QString& whole : {still_, still_ + still_.left(1)})
        if (!text.isEmpty() && text.size() == whole.size() && (whole + whole).contains(text))
            return true;
    still_ = text;
    return false;
}

TitleLabel::TitleLabel(const Style& style, QWidget* parent)
    : StationLabel{style, parent} {
    step_.setInterval(step_interval);
    rest_.setSingleShot(true);
    rest_.setInterval(turn_missed);
    connect(&step_, &QTimer::timeout, this, [this] { turn_on(); });
    connect(&rest_, &QTimer::timeout, this, [this] {
        step_.stop();
        update();
    });
}

void TitleLabel::set_text(const QString& text) {
    if (text == this->text())
        return;
    const bool turned = title_.take(text);
    StationLabel::set_text(text);
    if (turned) {
        rest_.start();
        if (!step_.isActive() && !fits(width() - 2 * margin()))
            step_.start();
    } else {
        rest_.stop();
        step_.stop();
        shift_ = 0;
    }
}

void TitleLabel::set_file(const QString& name) {
    if (name == file_)
        return;
    file_ = name;
    step_.stop();
    shift_ = 0;
    update();
}

// What parts a turning title from its beginning isn't part of one that stands still.
QString TitleLabel::shown() const {
    if (!file_.isEmpty())
        return file_;
    QString still = title_.still().trimmed();
    if (still.startsWith("- "))
        still.remove(0, 2);
    if (still.endsWith(" -"))
        still.chop(2);
    return still;
}

bool TitleLabel::fits(int width) const {
    return fontMetrics().horizontalAdvance(shown()) <= width;
}

void TitleLabel::turn_on() {
    shift_ += pixels_a_step;
    if (isVisible())
        update();
}

void TitleLabel::paint_text(QPainter& painter, const QRect& area) const {
    const QString still = file_.isEmpty() ? title_.still() : file_ + " - ";
    if (!is_turning() || fits(area.width()))
        return painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                                fontMetrics().elidedText(shown(), Qt::ElideRight, area.width()));
    painter.setClipRect(area);
    const int length = fontMetrics().horizontalAdvance(still);
    for (int left = area.left() - shift_ % length; left < area.right(); left += length)
        painter.drawText(QRect{left, area.top(), length, area.height()}, Qt::AlignLeft | Qt::AlignVCenter, still);
}

} // namespace sonarelle
