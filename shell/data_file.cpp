#include "shell/data_file.h"

#include "common/file.h"
#include "shell/record_text.h"

namespace shell {

bool SaveDataFile(Workspace& workspace, const std::string& fileName, bool& modified,
                  const std::function<std::string()>& encode) {
  try {
    modified = true;  // until all of it is written
    SaveUserFile(common::JoinPath(workspace.installDir, fileName), encode);
  } catch (const common::RuntimeFault& fault) {
    workspace.Shown().Show(fault.Text(), {}, common::Icon::kWarning);
    return false;
  }
  modified = false;
  std::erase(workspace.tables.unread, fileName);
  return true;
}

}  // namespace shell
