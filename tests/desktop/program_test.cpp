// The workbench as a process of its own, without a screen.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <iostream>
#include <memory>
#include <vector>

namespace desktop {
namespace {

struct Variable {
  const char* name;
  QString value;
};

void Surround(QProcess& process, const std::vector<Variable>& variables) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const Variable& variable : variables) {
    environment.insert(QLatin1String(variable.name), variable.value);
  }
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  process.setProcessEnvironment(environment);
}

/// The shipped locale definition made for this test; false where it cannot be.
bool MakeLocale(const QString& folder, const char* source, const char* charset, const char* name) {
  return QProcess::execute(QStringLiteral("localedef"),
                           {"-i", source, "-f", charset, folder + "/" + name}) == 0;
}

TEST(DesktopProgram, StartsWhateverItsSettingsAndLocale) {
  const QTemporaryDir folder;
  const QString place = folder.filePath(QStringLiteral("計器 データ (1)"));
  ASSERT_TRUE(QDir().mkpath(place + "/folder/zepha/settings.ini"));
  ASSERT_TRUE(QDir().mkpath(place + "/plain/zepha"));
  ASSERT_TRUE(QFile::copy(ZEPHA_SOURCE_DIR "/samples/plant.zph", place + "/計装.zph"));
  QFile settings(place + "/plain/zepha/settings.ini");
  ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
  settings.write(
      ("[ExeScrn]\nZephaFile=" + place + "/計装.zph\nZephaForm=frmOrifice\nDataNo=1\n").toUtf8());
  settings.close();
  const std::vector<Variable> rows[] = {
      {{"XDG_CONFIG_HOME", place + "/plain"}, {"LC_ALL", "C"}},
      {{"XDG_CONFIG_HOME", place + "/plain"}, {"LC_ALL", "xx_XX"}, {"LANG", ""}},
      {{"XDG_CONFIG_HOME", place + "/folder"}},
      {{"XDG_CONFIG_HOME", "/dev/null"}},
      {{"XDG_CONFIG_HOME", ""}, {"HOME", ""}},
  };
  std::vector<std::unique_ptr<QProcess>> programs;
  for (const auto& row : rows) {
    QProcess& program = *programs.emplace_back(std::make_unique<QProcess>());
    Surround(program, row);
    program.start(ZEPHA_BUILD_DIR "/zepha", QStringList());
    EXPECT_TRUE(program.waitForStarted());
  }
  QTest::qWait(4000);  // past the first picture
  for (const auto& program : programs) {
    EXPECT_EQ(program->state(), QProcess::Running) << program->readAllStandardError().toStdString();
    EXPECT_FALSE(program->readAllStandardError().contains("terminate"));
    program->kill();
    program->waitForFinished();
  }
}

TEST(DesktopProgram, LooksTheSameUnderEveryLocale) {
  const QTemporaryDir folder;
  const QByteArray script =
      "load " ZEPHA_SOURCE_DIR "/samples/plant.zph\nrecall 1\nclick cmd計算\n";
  QByteArray usual;
  for (const char* name : {"C.UTF-8", "C", "de_DE.UTF-8", "ja_JP.eucJP"}) {
    SCOPED_TRACE(name);
    const bool made = name[0] == 'C' || MakeLocale(folder.path(), QByteArray(name).left(5),
                                                   name[0] == 'd' ? "UTF-8" : "EUC-JP", name);
    if (!made) {
      std::cout << "not tried, package locales is missing: " << name << '\n';
      continue;
    }
    QProcess program;
    Surround(program, {{"LC_ALL", name}, {"LOCPATH", folder.path()}});
    const QString picture = folder.filePath(QStringLiteral("計器 (1).png"));
    program.start(ZEPHA_BUILD_DIR "/tests/desktop/take_picture",
                  {picture, QStringLiteral("--size"), QStringLiteral("1280x800")});
    program.write(script);
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished());
    QFile file(picture);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << program.readAllStandardError().toStdString();
    const QByteArray bytes = file.readAll();
    file.remove();
    if (usual.isEmpty()) usual = bytes;
    EXPECT_GT(bytes.size(), 20000);
    EXPECT_TRUE(bytes == usual);
  }
}

}  // namespace
}  // namespace desktop
