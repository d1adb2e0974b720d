#include "draw/SvgCanvas.h"

#include <algorithm>
#include <array>
#include <vector>

#include "draw/PainterCanvas.h"

namespace kestrel {
namespace {

/// Two decimals at most, without trailing zeros.
QString Number(double value) {
  QString text = QString::number(value, 'f', 2);
  while (text.endsWith('0')) text.chop(1);
  if (text.endsWith('.')) text.chop(1);
  return text == "-0" ? "0" : text;
}

QString GenericFamily(FontFace face) {
  switch (face) {
    case FontFace::Serif:
      return "DejaVu Serif, serif";
    default:
      return "DejaVu Sans, sans-serif";
  }
}

/// The text without what XML 1.0 cannot hold, not even escaped: blanks stand in place of control characters.
QString XmlText(std::string_view text) {
  QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  for (QChar& c : string)
    if (c.unicode() < 0x20 || c.unicode() == 0xFFFE || c.unicode() == 0xFFFF) c = QChar(' ');
  return string;
}

/// Letters, digits, - and . only.
QString IdText(const std::string& text) {
  QString id;
  for (const QChar c : QString::fromStdString(text))
    if (c.unicode() < 128 && (c.isLetterOrNumber() || c == '-' || c == '.')) id += c;
  return id;
}

}  // namespace

SvgCanvas::SvgCanvas(QSizeF size, const SurfaceRules& rules) : view_(rules), xml_(&document_) {
  xml_.setAutoFormatting(true);
  xml_.setAutoFormattingIndent(1);
  xml_.writeStartDocument();
  xml_.writeStartElement("svg");
  xml_.writeDefaultNamespace("http://www.w3.org/2000/svg");
  xml_.writeAttribute("version", "1.1");
  xml_.writeAttribute("width", Number(size.width()));
  xml_.writeAttribute("height", Number(size.height()));
  xml_.writeAttribute("viewBox", "0 0 " + Number(size.width()) + ' ' + Number(size.height()));
  xml_.writeStartElement("rect");
  xml_.writeAttribute("width", "100%");
  xml_.writeAttribute("height", "100%");
  xml_.writeAttribute("fill", "#ffffff");
  xml_.writeEndElement();
}

QByteArray SvgCanvas::Finish() {
  xml_.writeEndDocument();
  return document_;
}

void SvgCanvas::Begin(const QString& element) {
  if (pending_ && !groupOpen_) {
    xml_.writeStartElement("g");
    xml_.writeAttribute("id", UniqueId(*pending_));
    groupOpen_ = true;
  }
  xml_.writeStartElement(element);
}

void SvgCanvas::WriteStroke() {
  xml_.writeAttribute("fill", "none");
  xml_.writeAttribute("stroke", color_);
  xml_.writeAttribute("stroke-width", Number(lineWidth_ * view_.PixelSize()));
  xml_.writeAttribute("stroke-linejoin", "round");
  xml_.writeAttribute("stroke-linecap", "round");  // a line of no length is a dot, not nothing
}

void SvgCanvas::SetColor(ColorValue color) {
  color_ = PlatformColor(color).name();
}

void SvgCanvas::Line(Point from, Point to) {
  Polyline(std::array{from, to});
}

void SvgCanvas::Polyline(std::span<const Point> points) {
  view_.ForEachRun(points, [&](std::span<const Point> run) {
    QString text;
    for (const Point& point : run) text += Number(point.x) + ',' + Number(point.y) + ' ';
    text.chop(1);
    Begin("polyline");
    xml_.writeAttribute("points", text);
    WriteStroke();
    xml_.writeEndElement();
  });
}

void SvgCanvas::Polygon(std::span<const Point> points) {
  if (points.empty()) return;
  std::vector<Point> closed(points.begin(), points.end());
  closed.push_back(points.front());
  Polyline(closed);
}

void SvgCanvas::WriteCircle(Point center, float radius, bool filled) {
  if (!view_.Shows(center, radius)) return;
  const Point at = view_.At(center);
  Begin("circle");
  xml_.writeAttribute("cx", Number(at.x));
  xml_.writeAttribute("cy", Number(at.y));
  xml_.writeAttribute("r", Number(view_.Length(radius)));
  if (filled)
    xml_.writeAttribute("fill", color_);
  else
    WriteStroke();
  xml_.writeEndElement();
}

void SvgCanvas::Circle(Point center, float radius) {
  WriteCircle(center, radius, false);
}
void SvgCanvas::FilledCircle(Point center, float radius) {
  WriteCircle(center, radius, true);
}

void SvgCanvas::WriteBox(Point corner, Point opposite, bool filled) {
  const QRectF box = filled ? view_.Filled(corner, opposite) : view_.Outlined(corner, opposite);
  if (!view_.Area().intersects(box)) return;
  Begin("rect");
  xml_.writeAttribute("x", Number(box.x()));
  xml_.writeAttribute("y", Number(box.y()));
  xml_.writeAttribute("width", Number(box.width()));
  xml_.writeAttribute("height", Number(box.height()));
  if (filled)
    xml_.writeAttribute("fill", color_);
  else
    WriteStroke();
  xml_.writeEndElement();
}

void SvgCanvas::Box(Point corner, Point opposite) {
  WriteBox(corner, opposite, false);
}
void SvgCanvas::FilledBox(Point corner, Point opposite) {
  WriteBox(corner, opposite, true);
}
void SvgCanvas::Area(std::string_view name, std::span<const Point> outline) {
  QString text;
  for (const QPointF& point : view_.Filled(outline))
    text += Number(point.x()) + ',' + Number(point.y()) + ' ';
  text.chop(1);
  Begin("polygon");
  const QString id = IdText(std::string(name));
  ids_.insert(id);
  xml_.writeAttribute("id", id);
  xml_.writeAttribute("points", text);
  xml_.writeAttribute("fill", color_);
  xml_.writeAttribute("fill-rule", "evenodd");
  xml_.writeEndElement();
}

void SvgCanvas::Dot(Point at) {
  FilledCircle(at, static_cast<float>(view_.PixelSize() / 2 / view_.Length(1)));
}

void SvgCanvas::WriteText(Point topLeft, std::string_view text, bool rimmed) {
  const Point at = view_.Baseline(topLeft, font_);
  const double size = view_.FontSize(font_);
  const double width = size * measure_.TextWidth(font_, text) / (font_.Points * TwipsPerPoint);
  if (!view_.Area().intersects(QRectF(at.x, at.y - size, width, 1.3 * size))) return;
  Begin("text");
  xml_.writeAttribute("x", Number(at.x));
  xml_.writeAttribute("y", Number(at.y));
  xml_.writeAttribute("font-family", GenericFamily(font_.Face));
  xml_.writeAttribute("font-size", Number(size));
  if (font_.Face == FontFace::SansBold) xml_.writeAttribute("font-weight", "bold");
  xml_.writeAttribute("fill", color_);
  if (rimmed) {
    xml_.writeAttribute("stroke", "#ffffff");
    xml_.writeAttribute("stroke-width", Number(RimWidth * view_.PixelSize()));
    xml_.writeAttribute("stroke-linejoin", "round");
    xml_.writeAttribute("paint-order", "stroke");
  }
  xml_.writeAttribute("xml:space", "preserve");
  xml_.writeCharacters(XmlText(text));
  xml_.writeEndElement();
}

QString SvgCanvas::UniqueId(const StationMark& mark) {
  const QString stem =
      IdText(mark.CallSign) + '-' + QString::number(mark.Channel) + '-' + IdText(mark.HoursCode);
  // An id may not begin with a digit, a point or a dash.
  const QString base = stem.front().isLetter() ? stem : "s" + stem;
  QString id = base;
  for (int& number = numbers_[base]; !ids_.insert(id).second;)
    id = base + '-' + QString::number(std::max(++number, 2));
  return id;
}

void SvgCanvas::BeginStation(const StationMark& mark) {
  pending_ = mark;
}

void SvgCanvas::EndStation() {
  if (groupOpen_) xml_.writeEndElement();
  groupOpen_ = false;
  pending_.reset();
}

}  // namespace kestrel
