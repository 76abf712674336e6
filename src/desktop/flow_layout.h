#pragma once

#include <QLayout>
#include <vector>

namespace sonarelle {

/// Widgets in a line, in as many lines as the width needs.
class FlowLayout : public QLayout {
public:
    explicit FlowLayout(QWidget* parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override { items_.push_back(item); }
    [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return arrange({0, 0, width, 0}, false); }
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

private:
    int arrange(const QRect& area, bool place) const;

    std::vector<QLayoutItem*> items_;
};

} // namespace sonarelle
