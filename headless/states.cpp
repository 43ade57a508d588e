#include "headless/states.h"

#include <algorithm>
#include <numeric>

#include "common/text.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "shell/recovery_commands.h"

namespace headless {

namespace {

/// Line breaks are told as "\n", however a message writes them.
std::string WithPlainLineBreaks(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r') {
      result += text[i];
    } else if (i + 1 == text.size() || text[i + 1] != '\n') {
      result += '\n';
    }
  }
  return result;
}

const char* WordOf(common::Icon icon) {
  switch (icon) {
    case common::Icon::kInformation:
      return "information";
    case common::Icon::kQuestion:
      return "question";
    case common::Icon::kWarning:
      return "warning";
    case common::Icon::kCritical:
      return "critical";
    case common::Icon::kNone:
      break;
  }
  return "none";
}

const char* WordOf(common::Buttons buttons) {
  switch (buttons) {
    case common::Buttons::kYesNo:
      return "yesno";
    case common::Buttons::kYesNoCancel:
      return "yesnocancel";
    case common::Buttons::kOkCancel:
      return "okcancel";
    case common::Buttons::kOk:
      break;
  }
  return "ok";
}

/// Edit distance of two texts in characters.
std::size_t Distance(const std::u32string& a, const std::u32string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

Json ProcessOf(const data::ProcessState& process) {
  const auto number = [](common::Real value) { return static_cast<double>(value); };
  return {{"FluidPhase", process.fluidPhase},
          {"PressureAbs", number(process.pressureAbs)},
          {"DifferentialPressure", number(process.differentialPressure)},
          {"TemperatureC", number(process.temperatureC)},
          {"TemperatureK", number(process.temperatureK)},
          {"DensityBase", number(process.densityBase)},
          {"DensityFlow", number(process.densityFlow)},
          {"ViscosityCp", number(process.viscosityCp)},
          {"SaturationPressure", number(process.saturationPressure)},
          {"VapourPressure", number(process.vapourPressure)},
          {"CompressibilityZ", number(process.compressibilityZ)},
          {"RelativeHumidity", number(process.relativeHumidity)},
          {"WaterVapourDensity", number(process.waterVapourDensity)},
          {"FlowBasis", process.flowBasis},
          {"PipeInnerDiameter", number(process.pipeInnerDiameter)},
          {"FlowUnit", process.flowUnit},
          {"PressureUnit", process.pressureUnit},
          {"DiffPressureUnit", process.diffPressureUnit},
          {"TemperatureUnit", process.temperatureUnit},
          {"DensityUnit", process.densityUnit},
          {"ViscosityUnit", process.viscosityUnit},
          {"SaturationPressureUnit", process.saturationPressureUnit},
          {"VapourPressureUnit", process.vapourPressureUnit}};
}

/// Adds what one recorded item shows to the list.
class ItemTeller {
 public:
  explicit ItemTeller(Json& items) : items_(items) {}

  void operator()(const shell::PageRecorder::TextItem& item) const {
    items_.push_back({{"x", item.x},
                      {"y", item.y},
                      {"text", item.text},
                      {"font", item.font},
                      {"size", item.size},
                      {"bold", item.bold},
                      {"color", item.color}});
  }
  void operator()(const shell::PageRecorder::LineItem& item) const {
    for (std::size_t i = 1; i < item.points.size(); ++i) {
      AddLine(item.points[i - 1], item.points[i], item.pen.width);
    }
  }
  void operator()(const shell::PageRecorder::BoxItem& item) const {
    if (item.filled) {
      items_.push_back(
          {{"filled", {item.x1, item.y1, item.x2, item.y2}}, {"color", item.pen.color}});
      return;
    }
    const std::pair<double, double> corners[] = {
        {item.x1, item.y1}, {item.x2, item.y1}, {item.x2, item.y2}, {item.x1, item.y2}};
    for (std::size_t i = 0; i < 4; ++i) AddLine(corners[i], corners[(i + 1) % 4], item.pen.width);
  }
  void operator()(const shell::PageRecorder::PolygonItem& item) const {
    items_.push_back({{"polygon", item.points}, {"color", item.pen.color}});
  }
  void operator()(const shell::PageRecorder::EllipseItem& item) const {
    items_.push_back(
        {{"ellipse", {item.x, item.y, item.radiusX, item.radiusY}}, {"width", item.pen.width}});
  }

 private:
  void AddLine(std::pair<double, double> from, std::pair<double, double> to, double width) const {
    items_.push_back({{"line", {from.first, from.second, to.first, to.second}}, {"width", width}});
  }

  Json& items_;
};

}  // namespace

Json ItemsOf(const shell::PageRecorder& page) {
  Json items = Json::array();
  for (const auto& item : page.Items()) std::visit(ItemTeller(items), item);
  return items;
}

Json StateOf(const forms::Control& control) {
  Json state = {{"control", control.Name()},
                {"kind", control.Kind()},
                {"text", control.Text()},
                {"enabled", control.Enabled()},
                {"visible", control.Visible()},
                {"color", control.ForeColor()},
                {"backcolor", control.BackColor()},
                {"tooltip", control.ToolTip()},
                {"hint", control.Owner().Told().HintOf(control)}};
  if (const auto* const list = dynamic_cast<const forms::ListControl*>(&control)) {
    state["index"] = list->Index();
    state["items"] = list->Items();
  } else if (const auto* const check = dynamic_cast<const forms::CheckControl*>(&control)) {
    state["checked"] = check->Checked();
  } else if (const auto* const grid = dynamic_cast<const forms::Grid*>(&control)) {
    state["index"] = grid->SelectedRow();
    state["items"] = grid->Rows();
  } else if (const auto* const bar = dynamic_cast<const forms::ScrollBar*>(&control)) {
    state["index"] = bar->Value();
  } else if (const auto* const progress = dynamic_cast<const forms::ProgressBar*>(&control)) {
    state["index"] = progress->Value();
  }
  return state;
}

Json StateOf(const ScriptPresenter::Shown& shown) {
  return {{"title", shown.message.title},
          {"text", WithPlainLineBreaks(shown.message.text)},
          {"icon", WordOf(shown.message.icon)},
          {"buttons", WordOf(shown.message.buttons)},
          {"answer", WordOf(shown.answer)}};
}

Json StateOf(const shell::Workspace& workspace) {
  Json state = {{"ActiveSheetKind", workspace.activeSheetKind},
                {"LastFormName", workspace.lastFormName},
                {"TagCount", workspace.tags.TagCount()},
                {"CurrentTag", workspace.tags.currentTag},
                {"LastTagIndex", workspace.tags.lastTagIndex},
                {"TagModified", workspace.tags.tagModified},
                {"ZephaFileName", workspace.tags.zephaFileName},
                {"DuctCount", workspace.ducts.DuctCount()},
                {"DuctModified", workspace.ducts.ductModified},
                {"DuctFileName", workspace.ducts.ductFileName},
                {"FileMajorVersion", workspace.tags.FileMajorVersion()},
                {"IssuerName", workspace.issuerName},
                {"CalcFailed", workspace.calcFailed},
                {"CalcDone", workspace.calcDone},
                {"CalcNote", workspace.calcNote},
                {"MultiWindowMode", workspace.multiWindowMode}};
  state.update(ProcessOf(workspace.process));
  return state;
}

Json StateOf(const std::optional<shell::RecoveryCopy>& copy) {
  if (!copy) return nullptr;
  Json state = {{"time", shell::LocalTimeText(copy->time)}};
  if (copy->tags) state.update({{"path", copy->tags->path}, {"tags", copy->TagCount()}});
  if (copy->ducts) state.update({{"ductpath", copy->ducts->path}, {"ducts", copy->DuctCount()}});
  return state;
}

std::string WordOf(common::Answer answer) {
  switch (answer) {
    case common::Answer::kYes:
      return "yes";
    case common::Answer::kNo:
      return "no";
    case common::Answer::kCancel:
      return "cancel";
    case common::Answer::kOk:
      break;
  }
  return "ok";
}

std::optional<common::Answer> AnswerOf(const std::string& word) {
  for (const auto answer :
       {common::Answer::kYes, common::Answer::kNo, common::Answer::kOk, common::Answer::kCancel}) {
    if (WordOf(answer) == word) return answer;
  }
  return std::nullopt;
}

std::string NearestName(const std::string& wrong, const std::vector<std::string>& names) {
  const std::u32string target = common::CodePoints(wrong);
  const auto nearest =
      std::min_element(names.begin(), names.end(), [&](const auto& a, const auto& b) {
        return Distance(target, common::CodePoints(a)) < Distance(target, common::CodePoints(b));
      });
  return nearest == names.end() ? "" : *nearest;
}

}  // namespace headless
