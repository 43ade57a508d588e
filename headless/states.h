#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "headless/script_presenter.h"
#include "shell/page_recorder.h"
#include "shell/workspace.h"

namespace headless {

using Json = nlohmann::ordered_json;

/// What a script is told of a control.
Json StateOf(const forms::Control& control);

/// What a script is told of a message box.
Json StateOf(const ScriptPresenter::Shown& shown);

/// The workspace's values by name.
Json StateOf(const shell::Workspace& workspace);

/// What a recovery copy holds; null for none.
Json StateOf(const std::optional<shell::RecoveryCopy>& copy);

/// What stands on a printed page, in the order of drawing: texts and lines; a frame is four lines.
Json ItemsOf(const shell::PageRecorder& page);

/// Word of an answer, and the answer of a word; nothing for a word that is none.
std::string WordOf(common::Answer answer);
std::optional<common::Answer> AnswerOf(const std::string& word);

/// The name that is most like a wrong one, to be suggested; "" when there is none.
std::string NearestName(const std::string& wrong, const std::vector<std::string>& names);

}  // namespace headless
