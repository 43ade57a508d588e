#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/binding.h"
#include "desktop/paper/draw_surface.h"
#include "desktop/reporting.h"

namespace desktop {

namespace {

/// A widget without a click of its own that reports clicks.
template <class Widget, class ControlKind>
class Clickable : public Reporting<Widget, ControlKind> {
 public:
  using Reporting<Widget, ControlKind>::Reporting;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    pressed_ = event->button() == Qt::LeftButton;
    event->accept();
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    event->accept();
    const bool click = std::exchange(pressed_, false) && event->button() == Qt::LeftButton &&
                       this->rect().contains(event->position().toPoint());
    if (click) Clicked();
  }

  virtual void Clicked() { this->Shown().Click(); }

 private:
  bool pressed_ = false;
};

/// A label with a least width, which a longer text exceeds: a cut number would be a wrong one.
class LabelField : public Clickable<QLabel, forms::Label> {
 public:
  using Clickable::Clickable;
  QSize minimumSizeHint() const override {
    return QLabel::minimumSizeHint().expandedTo({leastWidth_, 0});
  }
  QSize sizeHint() const override { return QLabel::sizeHint().expandedTo({leastWidth_, 0}); }
  void SetLeastWidth(int width) {
    leastWidth_ = width;
    updateGeometry();
  }

 protected:
  void Clicked() override {
    if (!Shown().onClick && !Shown().onDblClick) FocusBuddy(*this);
    Clickable::Clicked();
  }

  void PressEnter() override { Clicked(); }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Space) return Clickable::keyPressEvent(event);
    Clicked();
    event->accept();
  }

  /// The focus is a frame within the label, so that nothing moves.
  void paintEvent(QPaintEvent* event) override {
    constexpr int kLine = 2;
    Clickable::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(
        {QBrush(Theme::Current().accent), kLine, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin});
    painter.drawRect(rect().adjusted(kLine / 2, kLine / 2, -kLine / 2, -kLine / 2));
  }

 private:
  int leastWidth_ = 0;
};

class ButtonField : public Reporting<QPushButton, forms::Button> {
 public:
  using Reporting::Reporting;

 protected:
  void PressEnter() override { click(); }
};

class PictureField : public Clickable<QWidget, forms::Picture> {
 public:
  using Clickable::Clickable;
  QSize sizeHint() const override { return minimumSize(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    const forms::Picture& picture = Shown();
    if (!picture.onPaint || picture.Width() <= 0 || picture.Height() <= 0) return;
    QPainter painter(this);
    const double unitsPerTwip = std::min(width() / picture.Width(), height() / picture.Height());
    painter.translate((width() - picture.Width() * unitsPerTwip) / 2,
                      (height() - picture.Height() * unitsPerTwip) / 2);
    const Theme& theme = Theme::Current();
    QtDrawSurface surface(painter, unitsPerTwip,
                          [&theme](forms::Color color) { return Ink(color, theme, theme.card); });
    try {
      picture.onPaint(surface);
    } catch (const common::RuntimeFault&) {
      // A picture of values that cannot be drawn stays as far as it came; the calculation that
      // led to them has told the user.
    }
  }
};

/// The visible part of a page in its true size. It tells its control how much that is.
class ViewportField : public Clickable<QWidget, forms::Viewport> {
 public:
  ViewportField(forms::Viewport& viewport, QWidget& parent)
      : Clickable(viewport, parent),
        preferred_(Pixels(viewport.Width()), Pixels(viewport.Height())) {}
  QSize sizeHint() const override { return preferred_; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    Clickable::resizeEvent(event);
    Shown().Resize(width() * kTwipsPerPixel, height() * kTwipsPerPixel);
  }

  void wheelEvent(QWheelEvent* event) override {
    constexpr int kLinesPerNotch = 3;
    turned_ += event->angleDelta().y();
    const int notches = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) Shown().Wheel(-notches * kLinesPerNotch);
    event->accept();
  }

  void paintEvent(QPaintEvent*) override {
    if (!Shown().onPaint) return;
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Current().window);
    QtDrawSurface surface(painter, 1.0 / kTwipsPerPixel);
    Shown().onPaint(surface);
  }

 private:
  static int Pixels(double twips) { return static_cast<int>(std::ceil(twips / kTwipsPerPixel)); }

  QSize preferred_;
  /// Parts of a notch that a fine wheel has turned.
  int turned_ = 0;
};

class ScrollField : public Reporting<QScrollBar, forms::ScrollBar> {
 public:
  using Reporting::Reporting;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      Reporting::wheelEvent(event);
    } else {
      event->ignore();
    }
  }

  /// Right and down go forwards in both directions of the bar, which Qt's own does not.
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Right:
      case Qt::Key_Down:
        return triggerAction(SliderSingleStepAdd);
      case Qt::Key_Left:
      case Qt::Key_Up:
        return triggerAction(SliderSingleStepSub);
      default:
        Reporting::keyPressEvent(event);
    }
  }
};

class GridField : public Reporting<QTableWidget, forms::Grid> {
 public:
  using Reporting::Reporting;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int before = currentRow();
    Reporting::keyPressEvent(event);
    if (currentRow() != before && currentRow() >= 0) Shown().Pick(currentRow());
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    Reporting::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && currentRow() >= 0) Shown().Pick(currentRow());
  }
};

const char* LookOf(forms::LabelStyle style) {
  switch (style) {
    case forms::LabelStyle::kResult:
      return "result";
    case forms::LabelStyle::kUnit:
      return "unit";
    case forms::LabelStyle::kHeading:
      return "heading";
    case forms::LabelStyle::kNote:
      return "note";
    case forms::LabelStyle::kCaption:
      break;
  }
  return "caption";
}

void ShowLabel(const forms::Label& label, QLabel& widget) {
  const Theme& theme = Theme::Current();
  const bool clickable = label.onClick || label.onDblClick;
  widget.setText(widget.buddy() != nullptr ? CaptionOf(label.Text())
                                           : QString::fromStdString(label.Text()));
  widget.setCursor(clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
  widget.setProperty("clickable", clickable);
  const bool result = label.Style() == forms::LabelStyle::kResult;
  const bool plain = label.BackColor() == forms::kWhite || label.BackColor() == forms::kButtonFace;
  ShowCommon(label, widget, result ? theme.result : theme.card,
             plain ? label.BackColor() : forms::kWhite);
}

void ResizeLabel(const forms::Label& label, LabelField& widget, const Scale& scale,
                 int characters) {
  constexpr int kResultWidth = 12;
  const int own = label.Style() == forms::LabelStyle::kResult ? kResultWidth : 0;
  widget.SetLeastWidth(scale.Digits(characters > 0 ? characters : own));
}

void ShowButton(const forms::Button& button, QPushButton& widget) {
  widget.setText(QString::fromStdString(button.Text()));
  ShowCommon(button, widget, Theme::Current().card, forms::kButtonFace);
}

void ShowFrame(const forms::Frame& frame, QFrame& widget) {
  auto* const title = widget.findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  if (title != nullptr) {
    title->setText(QString::fromStdString(frame.Text()));
    title->setHidden(frame.Text().empty());
  }
  widget.setEnabled(frame.Enabled());
  widget.setHidden(!frame.Visible());
}

QTableWidgetItem* GridItem(const std::string& text, const forms::Grid::Column& column) {
  auto* const item = new QTableWidgetItem(QString::fromStdString(text));
  item->setTextAlignment(Qt::AlignVCenter | (column.rightAligned ? Qt::AlignRight : Qt::AlignLeft));
  return item;
}

void FillGrid(const forms::Grid& grid, QTableWidget& table) {
  table.setRowCount(static_cast<int>(grid.Rows().size()));
  int row = 0;
  for (const auto& cells : grid.Rows()) {
    const std::size_t count = std::min(cells.size(), grid.Columns().size());
    for (std::size_t column = 0; column < count; ++column) {
      const QTableWidgetItem* const old = table.item(row, static_cast<int>(column));
      if (old != nullptr && old->text() == QString::fromStdString(cells[column])) continue;
      table.setItem(row, static_cast<int>(column), GridItem(cells[column], grid.Columns()[column]));
    }
    ++row;
  }
}

void ShowGrid(const forms::Grid& grid, QTableWidget& table) {
  const QSignalBlocker quiet(table);
  FillGrid(grid, table);
  if (grid.SelectedRow() < 0) {
    table.setCurrentItem(nullptr);
  } else if (grid.SelectedRow() != table.currentRow()) {
    table.selectRow(grid.SelectedRow());
  }
  ShowCommon(grid, table, Theme::Current().field, forms::kWhite);
}

void ResizeGrid(const forms::Grid& grid, QTableWidget& table, const Scale& scale, int characters) {
  constexpr double kRowEm = 1.7;
  int total = 0;
  int index = 0;
  for (const forms::Grid::Column& column : grid.Columns()) {
    const int width = scale.Twips(column.width);
    table.setColumnWidth(index++, width);
    total += width;
  }
  table.verticalHeader()->setDefaultSectionSize(scale.Em(kRowEm));
  table.setMinimumHeight(scale.Em(kRowEm) * grid.VisibleRows() +
                         table.horizontalHeader()->sizeHint().height() + 2 * table.frameWidth());
  table.setMinimumWidth(characters > 0 ? scale.Digits(characters) : total + scale.Em(2));
}

void PrepareGrid(const forms::Grid& grid, QTableWidget& table) {
  table.setColumnCount(static_cast<int>(grid.Columns().size()));
  int index = 0;
  for (const forms::Grid::Column& column : grid.Columns()) {
    table.setHorizontalHeaderItem(index++,
                                  new QTableWidgetItem(QString::fromStdString(column.title)));
  }
  table.verticalHeader()->hide();
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table.verticalHeader()->setMinimumSectionSize(1);
  table.horizontalHeader()->setHighlightSections(false);
  table.horizontalHeader()->setStretchLastSection(!grid.Columns().empty() &&
                                                  !grid.Columns().back().rightAligned);
  table.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setSelectionMode(QAbstractItemView::SingleSelection);
  table.setTabKeyNavigation(false);
}

}  // namespace

Bound Bind(forms::Label& label, QWidget& parent) {
  auto* const widget = new LabelField(label, parent);
  SetLook(*widget, LookOf(label.Style()));
  widget->setTextFormat(Qt::PlainText);
  widget->setAttribute(Qt::WA_Hover);
  if (label.TabStop()) widget->setFocusPolicy(Qt::TabFocus);
  if (label.Style() == forms::LabelStyle::kResult) {
    const auto* const result = dynamic_cast<const forms::ResultLabel*>(&label);
    const bool words = result != nullptr && result->HoldsWords();
    widget->setAlignment(Qt::AlignVCenter | (words ? Qt::AlignLeft : Qt::AlignRight));
  }
  return {widget, [&label, widget] { ShowLabel(label, *widget); },
          [&label, widget](const Scale& scale, int characters) {
            ResizeLabel(label, *widget, scale, characters);
          }};
}

Bound Bind(forms::Button& button, QWidget& parent) {
  auto* const widget = new ButtonField(button, parent);
  if (button.Role() == forms::ButtonRole::kDefault) SetLook(*widget, "default");
  widget->setAutoDefault(false);
  QObject::connect(widget, &QPushButton::clicked, widget, [&button] { button.Click(); });
  return {widget, [&button, widget] { ShowButton(button, *widget); }};
}

Bound Bind(forms::Frame& frame, QWidget& parent) {
  auto* const widget = new Reporting<QFrame, forms::Frame>(frame, parent);
  return {widget, [&frame, widget] { ShowFrame(frame, *widget); }};
}

Bound Bind(forms::Picture& picture, QWidget& parent) {
  auto* const widget = new PictureField(picture, parent);
  const auto show = [&picture, widget] {
    widget->setEnabled(picture.Enabled());
    widget->setHidden(!picture.Visible());
    widget->update();
  };
  return {widget, show, [&picture, widget](const Scale& scale, int) {
            widget->setMinimumSize(scale.Twips(picture.Width()), scale.Twips(picture.Height()));
          }};
}

Bound Bind(forms::Viewport& viewport, QWidget& parent) {
  auto* const widget = new ViewportField(viewport, parent);
  widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  return {widget, [widget] { widget->update(); }};
}

Bound Bind(forms::ScrollBar& bar, QWidget& parent) {
  auto* const widget = new ScrollField(bar, parent);
  const bool upright = bar.Orientation() == forms::ScrollBar::Direction::kVertical;
  widget->setOrientation(upright ? Qt::Vertical : Qt::Horizontal);
  widget->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(widget, &QScrollBar::valueChanged, widget,
                   [&bar](int value) { bar.SetValue(value); });
  const auto show = [&bar, widget] {
    const QSignalBlocker quiet(*widget);
    widget->setRange(0, bar.Maximum());
    widget->setPageStep(bar.LargeChange());
    widget->setSingleStep(bar.SmallChange());
    widget->setValue(bar.Value());
    ShowCommon(bar, *widget, Theme::Current().card, forms::kWhite);
  };
  return {widget, show};
}

Bound Bind(forms::Grid& grid, QWidget& parent) {
  auto* const table = new GridField(grid, parent);
  PrepareGrid(grid, *table);
  return {table, [&grid, table] { ShowGrid(grid, *table); },
          [&grid, table](const Scale& scale, int characters) {
            ResizeGrid(grid, *table, scale, characters);
          }};
}

Bound Bind(forms::ProgressBar& bar, QWidget& parent) {
  auto* const widget = new Reporting<QProgressBar, forms::ProgressBar>(bar, parent);
  const auto show = [&bar, widget] {
    widget->setRange(0, bar.Maximum());
    widget->setValue(bar.Value());
    widget->setHidden(!bar.Visible());
  };
  return {widget, show};
}

}  // namespace desktop
