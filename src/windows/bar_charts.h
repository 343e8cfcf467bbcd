#pragma once

#include <QWidget>
#include <optional>
#include <vector>

namespace vantora {
class quadro;
}

namespace vantora::ui::desktop {

class form_window;
class grid_view;

/// The company's figures as charts, drawn over the list of their bars. The list stays beneath: it
/// has the focus and the keys, and is what those hear who listen. Left and right go from chart to
/// chart, a click opens what stands behind a bar.
class bar_charts final : public QWidget {
 public:
    bar_charts(form_window& window, quadro& screen);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    struct chart {
        int first_row = 1;
        int rows = 0;
        QRect place;  ///< of its bars; the title stands above
    };

    /// Stands over the list while that holds bars.
    void cover();
    [[nodiscard]] std::vector<chart> charts() const;
    [[nodiscard]] QString text(int row, int column) const;
    [[nodiscard]] QRect place_of(const chart& in, int row) const;
    [[nodiscard]] std::optional<int> row_at(const QPoint& where) const;
    void paint_chart(QPainter& painter, const chart& one) const;
    void paint_bar(QPainter& painter, const chart& in, int row, int labels, int values) const;
    void go_to_chart(int step);

    form_window& window_;
    quadro& screen_;
    grid_view& list_;
};

}  // namespace vantora::ui::desktop
