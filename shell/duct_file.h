#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common/fault.h"
#include "shell/duct_store.h"

namespace shell {

// The duct file (*.dct) holds the program's version on its first line and then 153 fields for each
// duct.

/// What a duct file holds. A file that is damaged or too long has a fault and the complete ducts in
/// front of it.
struct DuctFileContents {
  std::vector<DuctRow> rows;
  std::optional<common::RuntimeFault> fault;
};

DuctFileContents ParseDuctFile(std::string bytes);

/// The bytes of a duct file, under this program's version. Raises kFileAccess, naming the duct,
/// when a text cannot be stored.
std::string EncodeDuctFile(const DuctStore& store);

/// Reads a file into the store. A failure is told to the user; nothing is raised. A file that
/// cannot be read at all leaves the store as it is. A damaged one leaves its complete ducts in the
/// store, without a file name, so that an overwriting save cannot replace it by less.
bool OpenDuctFile(DuctStore& store, const std::string& path, common::Messages& messages);

/// Whether there are ducts to save; tells the user otherwise.
bool HasDuctsToSave(const DuctStore& store, common::Messages& messages);

/// Replaces the store's file. False, after a message, when there are no ducts. Whatever keeps the
/// file from being written is raised with a sentence; the store then stays as it is.
bool SaveDuctFile(DuctStore& store, common::Messages& messages);

}  // namespace shell
