#include "desktop/form_view.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace desktop {

FormView::FormView(forms::Form& form, QWidget* parent) : QScrollArea(parent), form_(form) {
  setObjectName(QStringLiteral("formView"));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  const QString barStyle = FormStyle(Theme::Current(), kBaseLetterPixels);
  for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) bar->setStyleSheet(barStyle);
  content_ = new QWidget(this);
  content_->setObjectName(QStringLiteral("formSheet"));
  LayoutBuilder builder([this](forms::Control& control, int characters) {
    return PlaceControl(control, characters);
  });
  auto* const around = new QVBoxLayout(content_);
  around->setContentsMargins(0, 0, 0, 0);
  around->addWidget(builder.BuildForm(form_.Layout()));
  const std::vector<LayoutBuilder::Resize> layouts = builder.TakeResizes();
  resizes_.insert(resizes_.end(), layouts.begin(), layouts.end());
  setWidget(content_);
  JoinCaptions(builder.Captions());
  for (const auto& [control, bound] : bound_) Show(*control);
  OrderTabs();
  SetLetters(kBaseLetterPixels);
  natural_ = SizeWithPages();
  content_->installEventFilter(this);
}

/// A window onto a page would like to show much of it, but can do with little.
QSize FormView::SizeWithPages() {
  std::vector<QWidget*> pages;
  for (const auto& [control, bound] : bound_) {
    if (dynamic_cast<const forms::Viewport*>(control) != nullptr) pages.push_back(bound.widget);
  }
  pageTakesRoom_ = !pages.empty();
  const auto smallest = [&](auto minimum) {
    for (QWidget* page : pages) {
      page->setMinimumSize(minimum(*page));
      // The layouts between would otherwise hear of it with the next events only.
      for (QWidget* box = page->parentWidget(); box != content_; box = box->parentWidget()) {
        if (box->layout() != nullptr) box->layout()->invalidate();
        box->updateGeometry();
      }
    }
    content_->layout()->activate();
    return content_->layout()->totalMinimumSize();
  };
  const QSize size = smallest([](const QWidget& page) { return page.sizeHint(); });
  smallest([](const QWidget&) { return QSize(1, 1); });
  return size;
}

QWidget* FormView::PlaceControl(forms::Control& control, int characters) {
  const Bound bound = BindAny(control, *content_);
  bound_[&control] = bound;
  resizes_.emplace_back(
      [resize = bound.resize, characters](const Scale& scale) { resize(scale, characters); });
  return bound.widget;
}

QWidget* FormView::WidgetOf(const forms::Control& control) const {
  const auto found = bound_.find(&control);
  return found == bound_.end() ? nullptr : found->second.widget;
}

void FormView::Show(const forms::Control& control) {
  const auto found = bound_.find(&control);
  if (found == bound_.end()) return;
  found->second.show();
  Tell(control);
  for (const forms::Control* follower : form_.Told().FollowersOf(control)) Tell(*follower);
}

void FormView::Tell(const forms::Control& control) {
  QWidget* const widget = WidgetOf(control);
  if (widget == nullptr) return;
  const forms::Narration& told = form_.Told();
  const std::string tip = told.TipOf(control);
  widget->setAccessibleName(QString::fromStdString(told.SpokenNameOf(control)));
  widget->setAccessibleDescription(QString::fromStdString(tip));
  widget->setToolTip(PlainToolTip(tip));
}

void FormView::JoinCaptions(const std::vector<LayoutBuilder::Caption>& texts) {
  for (const auto& [cell, label] : texts) {
    if (const forms::Control* const field = form_.Told().FieldOf(*cell)) {
      label->setBuddy(WidgetOf(*field));
    }
  }
  for (const auto& [control, bound] : bound_) {
    auto* const label = qobject_cast<QLabel*>(bound.widget);
    const forms::Control* const field = form_.Told().FieldOf(*control);
    if (label != nullptr && field != nullptr) label->setBuddy(WidgetOf(*field));
  }
}

void FormView::OrderTabs() {
  QWidget* before = nullptr;
  for (const forms::Control* control : form_.TabOrder()) {
    QWidget* const widget = WidgetOf(*control);
    if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
    if (before != nullptr) setTabOrder(before, widget);
    before = widget;
  }
}

void FormView::FocusOn(const forms::Control& control) {
  QWidget* const widget = WidgetOf(control);
  if (widget == nullptr) return;
  QWidget* const before = window()->focusWidget();
  if (before != widget) {
    // A window in the background does not tell the field that it has lost the focus.
    if (auto* const edit = qobject_cast<QLineEdit*>(before)) edit->deselect();
    widget->setFocus(Qt::OtherFocusReason);
    if (auto* const edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
  } else if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    return;  // what the mouse has pressed must not move away from under it
  }
  ScrollTo(*widget);
}

void FormView::ScrollTo(const QWidget& widget) {
  constexpr int kMargin = 8;
  const QRect place(widget.mapTo(content_, QPoint()), widget.size());
  for (const QPoint corner : {place.bottomRight(), place.topLeft()}) {
    ensureVisible(corner.x(), corner.y(), kMargin, kMargin);
  }
}

void FormView::TakeFocus() {
  if (form_.Focused() != nullptr) {
    FocusOn(*form_.Focused());
    return;
  }
  const auto& order = form_.TabOrder();
  const auto first = std::find_if(order.begin(), order.end(), [](const forms::Control* control) {
    return control->TakesFocus() && control->Usable();
  });
  if (first != order.end()) form_.SetFocus(**first);
}

void FormView::SetLetters(int pixels) {
  if (pixels == letterPixels_) return;
  letterPixels_ = pixels;
  content_->setStyleSheet(FormStyle(Theme::Current(), pixels));
  content_->setFont(UiFont(pixels));
  const Scale scale(pixels);
  for (const LayoutBuilder::Resize& resize : resizes_) resize(scale);
  content_->layout()->activate();
}

bool FormView::Fits() const {
  const QSize needed = content_->layout()->totalMinimumSize();
  const QSize room = maximumViewportSize();
  return needed.width() <= room.width() && needed.height() <= room.height();
}

int FormView::LettersThatFit() const {
  const QSize needed = content_->layout()->totalMinimumSize().expandedTo({1, 1});
  const QSize room = maximumViewportSize();
  const double share = std::min(static_cast<double>(room.width()) / needed.width(),
                                static_cast<double>(room.height()) / needed.height());
  return std::clamp(static_cast<int>(letterPixels_ * share), kLeastLetterPixels,
                    kLargestLetterPixels);
}

void FormView::Grow() {
  if (fitting_ || pageTakesRoom_) return;
  fitting_ = true;
  SetLetters(LettersThatFit());
  fitting_ = false;
  Shrink();
}

void FormView::Shrink() {
  // New letters change sizes themselves; what that reports is no reason to begin again.
  if (fitting_) return;
  fitting_ = true;
  while (!Fits() && letterPixels_ > kLeastLetterPixels) SetLetters(letterPixels_ - 1);
  fitting_ = false;
}

void FormView::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  Grow();
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
  // A longer text may need more room than there is; letters that have room left stay as they are,
  // so that results do not make the sheet jump.
  if (watched == content_ && event->type() == QEvent::LayoutRequest) Shrink();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace desktop
