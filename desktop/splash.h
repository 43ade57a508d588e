#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

namespace desktop {

/// The picture that stands on the screen while the program starts. It ends after a second, or at
/// a key or click, whichever is first; the key goes nowhere else.
class Splash : public QWidget {
 public:
  /// version: the line below the name.
  explicit Splash(const QString& version);

  /// The splash has ended: shows the main window. Called once, before the splash disappears.
  std::function<void()> onEnd;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void End();

  QString version_;
  QTimer timer_;
  bool ended_ = false;
};

}  // namespace desktop
