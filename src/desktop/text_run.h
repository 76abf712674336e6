#pragma once

#include <QLayout>
#include <QWidget>
#include <vector>

namespace sonarelle {

class StationLabel;

/// Lays texts one behind the other, each as wide as it is. Where there isn't enough room the last give way.
class TextRunLayout : public QLayout {
public:
    explicit TextRunLayout(QWidget* parent);
    ~TextRunLayout() override;

    void addItem(QLayoutItem* item) override { items_.push_back(item); }
    [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

    /// The middles between two texts.
    [[nodiscard]] const std::vector<int>& joints() const { return joints_; }

private:
    std::vector<QLayoutItem*> items_;
    std::vector<int> joints_;
};

/// Short texts in a line, a dot between two. An empty or hidden one takes no room.
class TextRun : public QWidget {
public:
    explicit TextRun(const std::vector<StationLabel*>& texts);

    /// After one of them has changed.
    void arrange();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<StationLabel*> texts_;
    TextRunLayout* layout_;
};

} // namespace sonarelle
