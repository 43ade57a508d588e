#pragma once

#include <string>
#include <vector>

#include "common/messages.h"
#include "data/convert_lists.h"
#include "data/pipe_table.h"
#include "shell/record_text.h"
#include "shell/tag_store.h"

namespace shell {

// The instrument file (*.zph) holds 51 fields for the header and for each tag.

/// The bytes of an instrument file with the store's tags, under this program's version. Raises
/// kFileAccess as CheckStorable does, naming the tag.
std::string EncodeInstrumentFile(const TagStore& store);

/// The records of an instrument file, header first, brought to today's form. Raises
/// kIndexOutOfRange at the 302nd record or a pipe size that does not exist, kFileAccess when the
/// last record is cut short.
std::vector<TagRow> ParseInstrumentFile(std::string bytes, const data::PipeTable& pipes,
                                        const data::ConvertLists& lists);

/// Brings a record that an older version wrote to today's form. `fileVersion` is the version text
/// of its file's header.
void ConvertOldRecord(TagRow& record, const std::string& fileVersion, const data::PipeTable& pipes,
                      const data::ConvertLists& lists);

/// Reads a file into the store and lists its tags. A failure is told to the user and leaves a store
/// without tags and without file name; nothing is raised.
bool OpenInstrumentFile(TagStore& store, const std::string& path, const data::PipeTable& pipes,
                        const data::ConvertLists& lists, common::Messages& messages);

/// Whether there are tags to save; tells the user otherwise.
bool HasTagsToSave(const TagStore& store, common::Messages& messages);

/// Replaces the store's file. False, after a message, when there are no tags. Whatever keeps the
/// file from being written is raised with a sentence; the store then stays as it is, and where the
/// contents are the reason, so does the file.
bool SaveInstrumentFile(TagStore& store, common::Messages& messages);

/// Asks whether changes shall be saved before a new file is begun, if there are any. Yes saves the
/// instrument file, whichever list the question is about; No takes the mark of the changes. False
/// when the user cancels. A failed save is raised.
bool AskBeforeNewFile(const std::string& question, bool& modified, TagStore& store,
                      common::Messages& messages);

/// Empties the store for a new file, after asking whether changes shall be saved. False when the
/// user cancels. A failed save is raised before anything is given up.
bool NewInstrumentFile(TagStore& store, common::Messages& messages);

/// Tells which version of the program wrote the open file.
void ShowDataVersion(const TagStore& store, common::Messages& messages);

}  // namespace shell
