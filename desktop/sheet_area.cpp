#include "desktop/sheet_area.h"

#include <QMdiSubWindow>
#include <QPainter>
#include <algorithm>

#include "desktop/icons.h"
#include "desktop/theme.h"

namespace desktop {

namespace {

constexpr const char* kHints[] = {
    "「設計計算」メニューまたはツールバーから計算シートを開きます。",
    "「ファイル」→「開く」で計装データを読み込みます。",
    "計装データのファイル（*.zph）は、このウィンドウへのドロップでも開きます。"};

/// Letters as large as the width allows, within the sizes that look calm.
int LettersFor(int width) {
  constexpr int kLeast = 12;
  constexpr int kLargest = 18;
  constexpr int kColumns = 60;
  return std::clamp(width / kColumns, kLeast, kLargest);
}

void PaintHints(QPainter& painter, const QRect& room) {
  const Theme& theme = Theme::Current();
  const int letters = LettersFor(room.width());
  const int line = letters * 2;
  const int icon = letters * 5;
  const int height = icon + line + line * static_cast<int>(std::size(kHints));
  QRect place(room.left(), room.top() + std::max(0, (room.height() - height) * 2 / 5), room.width(),
              line);
  IconNamed("app").paint(&painter, place.center().x() - icon / 2, place.top(), icon, icon);
  place.translate(0, icon + line);
  painter.setFont(UiFont(letters));
  painter.setPen(theme.caption);
  for (const char* hint : kHints) {
    painter.drawText(place, Qt::AlignCenter, QString::fromUtf8(hint));
    place.translate(0, line);
  }
}

}  // namespace

SheetArea::SheetArea(QWidget* parent) : QMdiArea(parent) {
  setBackground(Theme::Current().window);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  QString words;
  for (const char* hint : kHints) words += QString::fromUtf8(hint);
  setAccessibleDescription(words);
  // A sheet that comes or goes may leave parts of the page as they were.
  connect(this, &QMdiArea::subWindowActivated, viewport(), [this] { viewport()->update(); });
}

bool SheetArea::AnySheet() const {
  const auto windows = subWindowList();
  return std::any_of(windows.begin(), windows.end(),
                     [](const QMdiSubWindow* window) { return !window->isHidden(); });
}

void SheetArea::paintEvent(QPaintEvent* event) {
  QMdiArea::paintEvent(event);
  if (AnySheet()) return;
  QPainter painter(viewport());
  PaintHints(painter, viewport()->rect());
}

}  // namespace desktop
