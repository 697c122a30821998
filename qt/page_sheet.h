#pragma once

#include "printing/page.h"
#include "printing/report.h"

#include <QWidget>
#include <functional>
#include <optional>

namespace parabolt {

/// A page on the screen: white paper, and on it what is composed for it.
class PageSheet : public QWidget {
public:
    /// `scale` tells how the page is shown; nothing for an empty one.
    PageSheet(std::function<std::optional<PreviewScale>()> scale,
              std::function<void(Page&)> compose, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<std::optional<PreviewScale>()> scale_;
    std::function<void(Page&)> compose_;
};

} // namespace parabolt
