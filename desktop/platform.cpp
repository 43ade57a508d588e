#include "desktop/platform.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace desktop {

bool QtPlatform::OpenWithDesktop(const std::string& path) {
  const QFileInfo file(QString::fromStdString(path));
  // Without this look the user's program would be started and complain in words of its own.
  if (path.empty() || !file.exists()) return false;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

bool QtPlatform::StartProgram(const std::string& program,
                              const std::vector<std::string>& arguments) {
  if (program.empty()) return false;
  QStringList words;
  for (const std::string& argument : arguments) words.append(QString::fromStdString(argument));
  return QProcess::startDetached(QString::fromStdString(program), words);
}

}  // namespace desktop
