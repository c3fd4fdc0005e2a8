#include "ui/parts/svg_page.hpp"

#include "output/svg/svg_path.hpp"
#include "ui/shell/qt_text.hpp"

#include <QBuffer>
#include <QFontInfo>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QXmlStreamWriter>

namespace kvt {

namespace {

/// Of a viewer's pixel, by the definition of SVG.
constexpr int DOTS_PER_INCH = 96;
constexpr double MM_PER_INCH = 25.4;

QString number(double value) {
    return qt_text(svg_number(value));
}

QString pair_of(const QPointF& place) {
    return number(place.x()) + "," + number(place.y());
}

/// "M x,y L x,y C x,y x,y x,y": the elements of a path as they are kept, three of them a curve.
QString data_of(const QPainterPath& path) {
    QStringList words;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.type != QPainterPath::CurveToDataElement) {
            words.append(element.isMoveTo() ? "M" : element.isLineTo() ? "L" : "C");
        }
        words.append(pair_of(element));
    }
    return words.join(' ');
}

QString points_of(const QPointF* points, int count) {
    QStringList words;
    for (int i = 0; i < count; ++i) {
        words.append(pair_of(points[i]));
    }
    return words.join(' ');
}

QString name_of(Qt::PenCapStyle cap) {
    return cap == Qt::RoundCap ? "round" : cap == Qt::SquareCap ? "square" : "butt";
}

QString name_of(Qt::PenJoinStyle join) {
    return join == Qt::RoundJoin ? "round" : join == Qt::BevelJoin ? "bevel" : "miter";
}

/// Lengths of the dashes in pixels; a pen keeps them in its widths.
QString dashes_of(const QPen& pen, double width) {
    QStringList lengths;
    for (const double length : pen.dashPattern()) {
        lengths.append(number(length * width));
    }
    return lengths.join(',');
}

QString families_of(const QFont& font) {
    QStringList quoted;
    for (const QString& family : font.families()) {
        quoted.append("'" + family + "'");
    }
    return quoted.join(',');
}

class svg_engine : public QPaintEngine {
  public:
    explicit svg_engine(QIODevice& file)
        : QPaintEngine(PrimitiveTransform | PixmapTransform | PainterPaths | AlphaBlend |
                       ConstantOpacity | Antialiasing),
          out_(&file) {}

    void begin_page(const QSize& size, const QString& title) {
        out_.setAutoFormatting(true);
        out_.writeStartDocument();
        out_.writeStartElement("svg");
        out_.writeDefaultNamespace("http://www.w3.org/2000/svg");
        write("width", number(size.width()));
        write("height", number(size.height()));
        write("viewBox", "0 0 " + number(size.width()) + " " + number(size.height()));
        out_.writeTextElement("title", title);
    }
    void end_page() { out_.writeEndDocument(); }

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& painted) override {
        pen_ = painted.pen();
        brush_ = painted.brush();
        font_ = painted.font();
        transform_ = painted.transform();
        opacity_ = painted.opacity();
    }

    void drawPath(const QPainterPath& path) override {
        out_.writeEmptyElement("path");
        write("d", data_of(path));
        write("fill-rule", path.fillRule() == Qt::WindingFill ? "nonzero" : "evenodd");
        write_filling();
        write_line();
        write_transform();
    }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        const bool is_open = mode == PolylineMode;
        out_.writeEmptyElement(is_open ? "polyline" : "polygon");
        write("points", points_of(points, count));
        if (is_open) {
            write("fill", "none");
        } else {
            write("fill-rule", mode == WindingMode ? "nonzero" : "evenodd");
            write_filling();
        }
        write_line();
        write_transform();
    }

    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        const QFont font = item.font();
        out_.writeStartElement("text");
        write("x", number(place.x()));
        write("y", number(place.y()));
        write("font-family", families_of(font));
        write("font-size", number(QFontInfo(font).pixelSize()));
        if (font.bold()) {
            write("font-weight", "bold");
        }
        if (font.italic()) {
            write("font-style", "italic");
        }
        write("xml:space", "preserve");
        write_colour("fill", pen_.color());
        write_transform();
        out_.writeCharacters(item.text());
        out_.writeEndElement();
    }

    void drawPixmap(const QRectF& place, const QPixmap& picture, const QRectF& part) override {
        QBuffer png;
        png.open(QIODevice::WriteOnly);
        picture.copy(part.toRect()).save(&png, "PNG");
        out_.writeEmptyElement("image");
        write("x", number(place.x()));
        write("y", number(place.y()));
        write("width", number(place.width()));
        write("height", number(place.height()));
        write("preserveAspectRatio", "none");
        write("href", "data:image/png;base64," + QString::fromLatin1(png.data().toBase64()));
        write_transform();
    }

  private:
    void write(const QString& attribute, const QString& value) {
        out_.writeAttribute(attribute, value);
    }

    void write_colour(const QString& attribute, const QColor& colour) {
        write(attribute, colour.name());
        const double cover = colour.alphaF() * opacity_;
        if (cover < 1.0) {
            write(attribute + "-opacity", number(cover));
        }
    }

    void write_filling() {
        if (brush_.style() == Qt::NoBrush) {
            write("fill", "none");
        } else {
            write_colour("fill", brush_.color());
        }
    }

    void write_line() {
        if (pen_.style() == Qt::NoPen) {
            write("stroke", "none");
            return;
        }
        const double width = pen_.widthF() == 0.0 ? 1.0 : pen_.widthF();  // 0 is a pixel's width
        write_colour("stroke", pen_.color());
        write("stroke-width", number(width));
        write("stroke-linecap", name_of(pen_.capStyle()));
        write("stroke-linejoin", name_of(pen_.joinStyle()));
        if (pen_.style() != Qt::SolidLine) {
            write("stroke-dasharray", dashes_of(pen_, width));
        }
    }

    void write_transform() {
        if (transform_.isIdentity()) {
            return;
        }
        QStringList words;
        for (const double value : {transform_.m11(), transform_.m12(), transform_.m21(),
                                   transform_.m22(), transform_.dx(), transform_.dy()}) {
            words.append(number(value));
        }
        write("transform", "matrix(" + words.join(' ') + ")");
    }

    QXmlStreamWriter out_;
    QPen pen_;
    QBrush brush_;
    QFont font_;
    QTransform transform_;
    double opacity_ = 1.0;
};

class svg_page : public QPaintDevice {
  public:
    svg_page(QSize size, QIODevice& file) : size_(size), engine_(file) {}

    svg_engine& engine() { return engine_; }
    QPaintEngine* paintEngine() const override { return &engine_; }

  protected:
    int metric(PaintDeviceMetric asked) const override {
        switch (asked) {
            case PdmWidth:
                return size_.width();
            case PdmHeight:
                return size_.height();
            case PdmWidthMM:
                return qRound(size_.width() * MM_PER_INCH / DOTS_PER_INCH);
            case PdmHeightMM:
                return qRound(size_.height() * MM_PER_INCH / DOTS_PER_INCH);
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return qRound(devicePixelRatioFScale());
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return DOTS_PER_INCH;
            default:
                return QPaintDevice::metric(asked);
        }
    }

  private:
    QSize size_;
    mutable svg_engine engine_;
};

}  // namespace

std::string svg_of(const QSize& size, const QString& title,
                   const std::function<void(QPainter&)>& paint_all) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    svg_page page(size, file);
    page.engine().begin_page(size, title);
    QPainter painter(&page);
    paint_all(painter);
    painter.end();
    page.engine().end_page();
    return file.data().toStdString();
}

}  // namespace kvt
