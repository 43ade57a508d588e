#pragma once

#include <functional>
#include <string>

#include "common/fault.h"

namespace shell {

/// Version text of this program, which it writes into the files of its users. Its major number must
/// never begin with 1: the valve records of such a file are taken for old ones and converted.
inline constexpr const char* kProgramVersion = "3.0.0";

// The users' files are CP932 text: fields in quotes, separated by commas, every record on a line
// that ends in CR LF. There is no escaping and no count.

/// Raises kFileAccess with a sentence about `owner` when a text cannot stand in a field: because
/// CP932 lacks a character, or because a quote with a comma or line break behind it would shift
/// all fields that follow.
void CheckStorable(const std::string& owner, const std::string& text);

/// Appends a text as a field in CP932, with a comma in front unless a line begins there. Raises as
/// CheckStorable does.
void AppendField(std::string& bytes, const std::string& text, const std::string& owner);

/// The fault of a file that ends in the middle.
common::RuntimeFault CutShort();

/// Replaces a file of the user's by what `encode` makes, which is called before the file is
/// touched. What fails is raised with a sentence that ends in "データは保存されていません。".
void SaveUserFile(const std::string& path, const std::function<std::string()>& encode);

/// Makes `name` that of the open file and saves. When that fails, what could not be written is not
/// the open file, unless it has that name already: the fault is raised with `fileName` and
/// `modified`, the mark of unsaved changes, as they were.
void SaveUnderName(std::string name, std::string& fileName, bool& modified,
                   const std::function<void()>& save);

/// Whether a flag of a tag record is set; one of an old file may also be a number.
bool IsSet(const std::string& text);

/// The file's name without its extension, as captions show it; a name of four characters or less is
/// shown whole.
std::string FileTitle(const std::string& path);

/// A chosen name without an extension gets that of the file kind.
std::string WithExtension(std::string path, const std::string& extension);

}  // namespace shell
