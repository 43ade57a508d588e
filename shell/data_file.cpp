#include "shell/data_file.h"

#include "common/file.h"

namespace shell {

void SaveDataFile(Workspace& workspace, const std::string& fileName, bool& modified,
                  const std::function<std::string()>& encode) {
  try {
    common::WriteFile(common::JoinPath(workspace.installDir, fileName), encode());
  } catch (const common::RuntimeFault& fault) {
    workspace.Shown().Show(fault.Text(), {}, common::Icon::kWarning);
    return;
  }
  modified = false;
  std::erase(workspace.tables.unread, fileName);
}

}  // namespace shell
