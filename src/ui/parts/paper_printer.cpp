#include "ui/parts/paper_printer.hpp"

#include "ui/parts/print_dialog.hpp"
#include "ui/shell/qt_text.hpp"

#include <QFontMetricsF>
#include <QPrinter>

#include <algorithm>
#include <vector>

namespace kvt {

namespace {

struct placed_text {
    double left;
    QString text;
};

/// A line with its items in their columns, dots from the left margin.
struct placed_line {
    std::vector<placed_text> texts;
    double right = 0.0;
};

placed_line placed(std::initializer_list<report_item> items, const QFontMetricsF& metrics) {
    placed_line line;
    for (const report_item& item : items) {
        if (item.text.empty()) {
            continue;
        }
        const QString text = qt_text(item.text);
        const double column = (item.column - 1) * metrics.averageCharWidth();
        const double behind = line.right + metrics.horizontalAdvance(' ');
        const double left = line.texts.empty() ? column : std::max(column, behind);
        line.texts.push_back({left, text});
        line.right = left + metrics.horizontalAdvance(text);
    }
    return line;
}

}  // namespace

paper_printer::paper_printer(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {}

paper_printer::~paper_printer() = default;

std::unique_ptr<paper_printer> paper_printer::on(std::unique_ptr<QPrinter> printer) {
    std::unique_ptr<paper_printer> paper(new paper_printer(std::move(printer)));
    return paper->painter_.begin(paper->printer_.get()) ? std::move(paper) : nullptr;
}

void paper_printer::font_size(double points) {
    QFont font = painter_.font();
    font.setPointSizeF(points);
    painter_.setFont(font);
}

void paper_printer::line(std::initializer_list<report_item> items) {
    const QFontMetricsF metrics(painter_.font(), printer_.get());
    if (bottom_ + metrics.lineSpacing() > printer_->height() && printer_->newPage()) {
        bottom_ = 0.0;
    }
    const placed_line line = placed(items, metrics);
    painter_.save();
    painter_.translate(0.0, bottom_ + metrics.ascent());
    painter_.scale(std::min(1.0, printer_->width() / std::max(line.right, 1.0)), 1.0);
    for (const placed_text& text : line.texts) {
        painter_.drawText(QPointF(text.left, 0.0), text.text);
    }
    painter_.restore();
    bottom_ += metrics.lineSpacing();
}

void paper_printer::end_document() {
    painter_.end();
}

std::unique_ptr<report_printer> ask_for_paper(const print_request& request, QWidget* parent) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (!ask_how_to_print(*printer, request, print_offers::whole_document, parent)) {
        return nullptr;
    }
    return paper_printer::on(std::move(printer));
}

}  // namespace kvt
