#pragma once

#include <QMdiArea>

namespace desktop {

/// The room of the sheets. While none is open it tells how to begin.
class SheetArea : public QMdiArea {
 public:
  explicit SheetArea(QWidget* parent);

  /// Whether a sheet is open.
  bool AnySheet() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
