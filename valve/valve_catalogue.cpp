#include "valve/valve_catalogue.h"

#include <algorithm>

#include "common/fields.h"
#include "common/table_reader.h"
#include "common/text.h"
#include "valve/opening.h"

namespace valve {

namespace {

template <class Row>
bool AllEmpty(const Row& row) {
  return std::all_of(row.begin(), row.end(), [](const std::string& text) { return text.empty(); });
}

/// Visits the fields of a model in file order, the trims behind them, and says where a record ends.
template <class Catalogue, class Field, class RecordEnd>
void VisitModel(Catalogue& catalogue, std::size_t maker, std::size_t model, Field field,
                RecordEnd recordEnd) {
  field(catalogue.valveModel[maker][model]);
  field(catalogue.valveFL[maker][model]);
  field(catalogue.valveFd[maker][model]);
  field(catalogue.valveN[maker][model]);
  field(catalogue.valveRange[maker][model]);
  field(catalogue.valveChar[maker][model]);
  recordEnd();
  for (std::size_t trim = 0; trim < ValveCatalogue::kTrims; ++trim) {
    field(catalogue.valveSize[maker][model][trim]);
    field(catalogue.valveCv[maker][model][trim]);
    recordEnd();
  }
}

/// Visits the whole catalogue in file order, so that reading and writing cannot differ.
template <class Catalogue, class Field, class RecordEnd>
void Visit(Catalogue& catalogue, Field field, RecordEnd recordEnd) {
  for (std::size_t maker = 0; maker < ValveCatalogue::kMakers; ++maker) {
    field(catalogue.valveMaker[maker]);
    recordEnd();
    for (std::size_t model = 0; model < ValveCatalogue::kModels; ++model) {
      VisitModel(catalogue, maker, model, field, recordEnd);
    }
  }
}

}  // namespace

int CharacteristicIndex(const std::string& field) {
  constexpr int kLast = static_cast<int>(kCharacteristics.size()) - 1;
  if (field.size() != 1 || field[0] < '0' || field[0] > '0' + kLast) return kNoCharacteristic;
  return field[0] - '0';
}

bool ValveCatalogue::Empty() const {
  return AllEmpty(valveMaker) && std::all_of(valveModel.begin(), valveModel.end(),
                                             [](const auto& models) { return AllEmpty(models); });
}

bool ReadValveCatalogue(std::string bytes, ValveCatalogue& catalogue) {
  catalogue = {};
  common::TableReader reader(std::move(bytes));
  ValveCatalogue read;
  Visit(
      read, [&](std::string& field) { field = reader.Text(); }, [] {});
  if (!reader.Good()) return false;
  catalogue = std::move(read);
  return true;
}

std::string WriteValveCatalogue(const ValveCatalogue& catalogue) {
  std::string content;
  bool firstInRecord = true;
  Visit(
      catalogue,
      [&](const std::string& field) {
        if (!firstInRecord) content += ',';
        content += common::QuotedField(field);
        firstInRecord = false;
      },
      [&] {
        content += "\r\n";
        firstInRecord = true;
      });
  return common::ToCp932(content);
}

bool ValveDiaTable::Empty() const {
  return std::all_of(valveDia.begin(), valveDia.end(),
                     [](const auto& row) { return AllEmpty(row); });
}

bool ReadValveDiaTable(std::string bytes, ValveDiaTable& table) {
  table = {};
  common::TableReader reader(std::move(bytes));
  ValveDiaTable read;
  for (auto& row : read.valveDia) {
    for (std::string& bore : row) bore = reader.Text();
  }
  if (!reader.Good()) return false;
  table = std::move(read);
  return true;
}

}  // namespace valve
