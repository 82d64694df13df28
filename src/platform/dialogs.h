// Modal questions to the rider: message boxes and file choosers.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace platform {

enum class MessageKind { Information, Exclamation, Critical };
enum class MessageButtons { Ok, OkCancel, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

struct Message {
  MessageKind kind = MessageKind::Information;
  MessageButtons buttons = MessageButtons::Ok;
  std::string title;
  std::string text;  // lines parted by '\n'
};

enum class FilePurpose { Open, OpenSeveral, Save, Folder };

struct FileRequest {
  FilePurpose purpose = FilePurpose::Open;
  std::string title;
  std::string folder;        // where the chooser starts
  std::string filter;        // pairs "words|pattern" parted by '|'
  std::string proposedName;  // for Save
};

struct NumberRequest {
  std::string title;
  std::string text;
  int least = 0;
  int most = 0;
  int proposed = 0;
};

// ".tq2" of "words|*.tq2;*.b|words|*.c"; empty where the first pattern fits any ending.
[[nodiscard]] std::string suffixOf(const std::string& filter);
// The name that a save dialog saves under: the filter's suffix is added unless the name ends in it already,
// also where the name has a dot of its own.
[[nodiscard]] std::string withSuffix(const std::string& name, const std::string& filter);

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Closing the box counts as Cancel where there is one, else as Ok.
  virtual Answer message(const Message& message) = 0;
  // The chosen absolute paths; none when the rider cancelled. Save gives one path, which ends in the filter's
  // suffix; asking before overwriting is the caller's business.
  virtual std::vector<std::string> chooseFiles(const FileRequest& request) = 0;
  // A whole number within the bounds; none when the rider cancelled, or where nobody can be asked.
  virtual std::optional<int> askNumber(const NumberRequest&) { return std::nullopt; }
};

}  // namespace platform
