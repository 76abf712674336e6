#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QWidget>
#include <vector>

#include "desktop/level_meter.h"
#include "desktop/progress_strip.h"
#include "desktop/sound_picture.h"
#include "desktop/station_label.h"
#include "desktop/studio_button.h"
#include "desktop/title_label.h"

namespace sonarelle {

/// Whether a widget is one of the parts that an operator reads or presses, and no frame for others.
inline bool is_part(const QWidget& widget) {
    return dynamic_cast<const StationLabel*>(&widget) != nullptr ||
           dynamic_cast<const StudioButton*>(&widget) != nullptr ||
           dynamic_cast<const ProgressStrip*>(&widget) != nullptr ||
           dynamic_cast<const LevelMeter*>(&widget) != nullptr ||
           dynamic_cast<const SoundPictureView*>(&widget) != nullptr ||
           qobject_cast<const QCheckBox*>(&widget) != nullptr || qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QRadioButton*>(&widget) != nullptr || qobject_cast<const QSlider*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

/// What a part is called in a failure.
inline std::string name_of(const QWidget& widget) {
    const auto* label = dynamic_cast<const StationLabel*>(&widget);
    const auto* button = dynamic_cast<const StudioButton*>(&widget);
    const QString text = label != nullptr ? label->text() : button != nullptr ? button->text() : QString{};
    return (widget.objectName() + " \"" + text + "\"").toStdString();
}

inline std::vector<QWidget*> parts_on_view(QWidget& root) {
    std::vector<QWidget*> parts;
    for (QWidget* child : root.findChildren<QWidget*>())
        if (child->isVisible() && is_part(*child) && child->width() > 0 && child->height() > 0)
            parts.push_back(child);
    return parts;
}

inline QRect place_in(const QWidget& part, const QWidget& root) {
    return {part.mapTo(&root, QPoint{}), part.size()};
}

/// Whether all of its text can be read. A name may be as long as it likes: it ends in dots, and is whole in its tip.
inline bool is_whole(const QWidget& part) {
    if (const auto* label = dynamic_cast<const StationLabel*>(&part))
        return label->holds_a_name() || !label->is_cut();
    if (const auto* button = dynamic_cast<const StudioButton*>(&part))
        return !button->is_cut();
    if (qobject_cast<const QCheckBox*>(&part) != nullptr || qobject_cast<const QRadioButton*>(&part) != nullptr)
        return part.width() >= part.sizeHint().width();
    return true;
}

/// Nothing is clipped, nothing lies on another part or beyond the window.
inline void expect_laid_out(QWidget& root, const std::string& where) {
    const std::vector<QWidget*> parts = parts_on_view(root);
    ASSERT_FALSE(parts.empty());
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const QRect place = place_in(*parts[i], root);
        EXPECT_TRUE(is_whole(*parts[i])) << where << ": clipped " << name_of(*parts[i]);
        const QSize least = parts[i]->minimumSizeHint().boundedTo(parts[i]->maximumSize());
        EXPECT_GE(place.height(), least.height()) << where << ": too low " << name_of(*parts[i]);
        EXPECT_TRUE(root.rect().contains(place)) << where << ": beyond the window " << name_of(*parts[i]);
        for (std::size_t j = i + 1; j < parts.size(); ++j)
            if (!parts[i]->isAncestorOf(parts[j]) && !parts[j]->isAncestorOf(parts[i])) {
                EXPECT_FALSE(place.intersects(place_in(*parts[j], root)))
                    << where << ": " << name_of(*parts[i]) << " and " << name_of(*parts[j]);
            }
    }
}

} // namespace sonarelle
