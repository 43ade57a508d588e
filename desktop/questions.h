#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <string>

#include "common/messages.h"
#include "forms/presenter.h"

namespace desktop {

/// A message of the system, as plain text whatever is in it.
class MessageBox : public QMessageBox {
 public:
  MessageBox(const common::Message& message, QWidget* parent);
  common::Answer Answer() const;
};

/// A question for a file.
class FileBox : public QFileDialog {
 public:
  FileBox(const forms::FileQuestion& question, QWidget* parent);
  /// What was chosen.
  std::string Path() const;
  std::string ReplaceQuestion() const;
};

/// The patterns of a filter such as "ZEPHAデータ(*.zph)|*.zph" in Qt's form, in small letters and
/// capitals.
QStringList NameFilters(const std::string& filter);

}  // namespace desktop
