#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace parabolt {

/// Puts widgets side by side, in as many rows as the width asks for.
class FlowLayout : public QLayout {
public:
    explicit FlowLayout(QWidget* parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return lay({0, 0, width, 0}, false); }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& room) override;

private:
    int lay(const QRect& room, bool moves) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

} // namespace parabolt
