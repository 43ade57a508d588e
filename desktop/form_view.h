#pragma once

#include <QScrollArea>
#include <map>
#include <vector>

#include "desktop/binding.h"
#include "desktop/form_layout.h"
#include "forms/form.h"

namespace desktop {

/// Shows a form from its declared layout. Letters and distances grow with the view; when it is too
/// small for readable letters, it scrolls. The form outlives the view.
class FormView : public QScrollArea {
 public:
  explicit FormView(forms::Form& form, QWidget* parent = nullptr);

  forms::Form& Shown() const { return form_; }
  /// A control looks different now. Controls that the layout does not show are passed over.
  void Show(const forms::Control& control);
  /// The form's focus is on this control.
  void FocusOn(const forms::Control& control);
  /// Gives the focus to the form's control, at first to the one where reading starts.
  void TakeFocus();
  /// The widget of a control, or null.
  QWidget* WidgetOf(const forms::Control& control) const;

  /// The room that the form takes with letters of the base height.
  QSize NaturalSize() const { return natural_; }
  int LetterPixels() const { return letterPixels_; }
  QSize sizeHint() const override { return natural_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* PlaceControl(forms::Control& control, int characters);
  /// Relates each caption to the field that it names.
  void JoinCaptions(const std::vector<LayoutBuilder::Caption>& texts);
  /// Shows name, unit and tip of a control.
  void Tell(const forms::Control& control);
  void OrderTabs();
  /// Scrolls until the whole widget shows, or its upper left end where it is too large.
  void ScrollTo(const QWidget& widget);
  void SetLetters(int pixels);
  QSize SizeWithPages();
  bool Fits() const;
  int LettersThatFit() const;
  void Grow();
  void Shrink();

  forms::Form& form_;
  QWidget* content_ = nullptr;
  std::map<const forms::Control*, Bound> bound_;
  std::vector<LayoutBuilder::Resize> resizes_;
  QSize natural_;
  /// A window onto a page shows more of it where there is room; letters then stay as they are.
  bool pageTakesRoom_ = false;
  int letterPixels_ = 0;
  bool fitting_ = false;
};

}  // namespace desktop
