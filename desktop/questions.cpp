#include "desktop/questions.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <utility>

namespace desktop {

namespace {

QMessageBox::Icon IconOf(common::Icon icon) {
  switch (icon) {
    case common::Icon::kInformation:
      return QMessageBox::Information;
    case common::Icon::kQuestion:
      return QMessageBox::Question;
    case common::Icon::kWarning:
      return QMessageBox::Warning;
    case common::Icon::kCritical:
      return QMessageBox::Critical;
    case common::Icon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(common::Buttons buttons) {
  switch (buttons) {
    case common::Buttons::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case common::Buttons::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case common::Buttons::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case common::Buttons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

const std::pair<QMessageBox::StandardButton, const char*> kCaptions[] = {
    {QMessageBox::Ok, "OK"},
    {QMessageBox::Yes, "はい(&Y)"},
    {QMessageBox::No, "いいえ(&N)"},
    {QMessageBox::Cancel, "キャンセル"}};

/// What the escape key and the window's cross mean; without it they do nothing.
QMessageBox::StandardButton EscapeOf(common::Buttons buttons) {
  switch (buttons) {
    case common::Buttons::kYesNo:
      return QMessageBox::No;
    case common::Buttons::kOk:
      return QMessageBox::Ok;
    default:
      return QMessageBox::Cancel;
  }
}

QString DocumentsFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString WithLineEnds(const std::string& text) {
  QString lines = QString::fromStdString(text);
  return lines.replace(QLatin1String("\r\n"), QLatin1String("\n"))
      .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

}  // namespace

MessageBox::MessageBox(const common::Message& message, QWidget* parent) : QMessageBox(parent) {
  setTextFormat(Qt::PlainText);
  setText(WithLineEnds(message.text));
  setWindowTitle(message.title.empty() ? QCoreApplication::applicationName()
                                       : QString::fromStdString(message.title));
  setIcon(IconOf(message.icon));
  setStandardButtons(ButtonsOf(message.buttons));
  for (const auto& [which, caption] : kCaptions) {
    if (QAbstractButton* const shown = button(which)) shown->setText(QString::fromUtf8(caption));
  }
  setDefaultButton(standardButtons().testFlag(QMessageBox::Yes) ? QMessageBox::Yes
                                                                : QMessageBox::Ok);
  setEscapeButton(EscapeOf(message.buttons));
}

common::Answer MessageBox::Answer() const {
  switch (standardButton(clickedButton())) {
    case QMessageBox::Yes:
      return common::Answer::kYes;
    case QMessageBox::No:
      return common::Answer::kNo;
    case QMessageBox::Cancel:
      return common::Answer::kCancel;
    default:
      return common::Answer::kOk;
  }
}

QStringList NameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    if (patterns != patterns.toUpper()) patterns += QLatin1Char(' ') + patterns.toUpper();
    const QString name = parts[i].left(parts[i].indexOf(QLatin1Char('(')));
    filters.append(QStringLiteral("%1 (%2)").arg(name, patterns));
  }
  return filters;
}

FileBox::FileBox(const forms::FileQuestion& question, QWidget* parent) : QFileDialog(parent) {
  const bool save = question.save;
  setWindowTitle(question.title.empty() ? QString::fromUtf8(save ? "名前を付けて保存" : "開く")
                                        : QString::fromStdString(question.title));
  setAcceptMode(save ? AcceptSave : AcceptOpen);
  setFileMode(save ? AnyFile : ExistingFile);
  setOption(DontConfirmOverwrite);
  setNameFilters(NameFilters(question.filter));
  setDefaultSuffix(QString::fromStdString(question.extension));
  const QString folder = QString::fromStdString(question.folder);
  setDirectory(!folder.isEmpty() && QFileInfo(folder).isDir() ? folder : DocumentsFolder());
  if (save && !question.name.empty()) selectFile(QString::fromStdString(question.name));
  setLabelText(LookIn, QStringLiteral("場所:"));
  setLabelText(FileName, QStringLiteral("ファイル名(&N):"));
  setLabelText(FileType, QStringLiteral("ファイルの種類:"));
  setLabelText(Accept, QString::fromUtf8(save ? "保存(&S)" : "開く(&O)"));
  setLabelText(Reject, QStringLiteral("キャンセル"));
}

std::string FileBox::Path() const {
  const QStringList files = selectedFiles();
  return files.isEmpty() ? std::string() : files.front().toStdString();
}

std::string FileBox::ReplaceQuestion() const {
  return QFileInfo(QString::fromStdString(Path())).fileName().toStdString() +
         " は既に存在します。\n上書きしますか？";
}

}  // namespace desktop
