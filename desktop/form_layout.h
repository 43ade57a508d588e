#pragma once

#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "desktop/scale.h"
#include "forms/layout.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLayout;

namespace desktop {

/// Builds the widgets of a declared layout.
class LayoutBuilder {
 public:
  /// Creates the widget of a control; characters: the width that its cell asks for, or 0.
  using Place = std::function<QWidget*(forms::Control& control, int characters)>;
  using Resize = std::function<void(const Scale&)>;
  /// A fixed text of the layout and the label that shows it.
  using Caption = std::pair<const forms::Cell*, QLabel*>;

  explicit LayoutBuilder(Place place) : place_(std::move(place)) {}

  /// The widget of the whole form.
  QWidget* BuildForm(const forms::Block& block);
  /// What has to be done when the letter height changes.
  std::vector<Resize> TakeResizes() { return std::move(resizes_); }
  const std::vector<Caption>& Captions() const { return captions_; }

 private:
  /// Where room goes that no block of a column asks for: columns side by side end on one line.
  enum class Rest { kBelow, kToLast };

  QWidget* Build(const forms::Block& block);
  QWidget* BuildTable(const forms::Block& block);
  QWidget* BuildRow(const forms::Block& block);
  QWidget* BuildColumn(const forms::Block& block, Rest rest);
  QWidget* BuildGroup(const forms::Block& block);
  QWidget* BuildButtons(const forms::Block& block);

  void AddLine(QGridLayout& grid, std::size_t line, const std::vector<forms::Line>& lines);
  QWidget* BuildCell(const forms::Cell& cell);
  QWidget* BuildOneOf(const forms::Cell& cell);
  QWidget* BuildSide(const forms::Cell& cell);
  QWidget* PlaceControl(forms::Control& control, int characters);

  void Space(QBoxLayout& layout, double margin, double spacing);
  void OnResize(Resize resize) { resizes_.push_back(std::move(resize)); }

  Place place_;
  std::vector<Resize> resizes_;
  std::vector<Caption> captions_;
};

}  // namespace desktop
