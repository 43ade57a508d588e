#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"
#include "shell/page_recorder.h"
#include "shell/platform.h"

namespace tests {

/// A desktop without windows: it starts nothing and prints on recorded pages.
class FakePlatform : public shell::Platform {
 public:
  std::vector<std::string> started;  // the program last started, with its arguments
  std::vector<std::string> opened;
  std::vector<std::string> images;  // forms whose image was printed
  std::deque<shell::PageRecorder> pages;
  bool userCancels = false;
  bool paperJam = false;
  int aborted = 0;

  bool OpenWithDesktop(const std::string& path) override {
    opened.push_back(path);
    return true;
  }
  bool StartProgram(const std::string& program,
                    const std::vector<std::string>& arguments) override {
    started = {program};
    started.insert(started.end(), arguments.begin(), arguments.end());
    return program != "missing";
  }
  std::unique_ptr<shell::PrintJob> AskForPrinter() override {
    return userCancels ? nullptr : std::make_unique<Job>(*this);
  }
  std::unique_ptr<shell::PrintJob> StartPdf(const std::string& path) override {
    return path.empty() ? nullptr : std::make_unique<Job>(*this);
  }
  void PrintImage(forms::Form& form) override { images.push_back(form.Name()); }

 private:
  class Job : public shell::PrintJob {
   public:
    explicit Job(FakePlatform& platform) : platform_(platform) {}
    forms::DrawSurface& NewPage() override { return platform_.pages.emplace_back(); }
    bool Finish() override { return !platform_.paperJam; }
    void Abort() override { ++platform_.aborted; }

   private:
    FakePlatform& platform_;
  };
};

}  // namespace tests
