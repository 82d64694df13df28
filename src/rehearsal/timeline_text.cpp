#include "rehearsal/timeline_text.h"

#include <algorithm>
#include <string>
#include <vector>

#include "rehearsal/escaping.h"
#include "rehearsal/journal.h"

namespace rehearsal {
namespace {

struct Line {
  model::Moment begins{0};
  model::Moment ends{0};
  std::string what;  // the kind and the rest
};

void addRows(std::vector<Line>& lines, const std::vector<model::TimedRow>& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const model::TimedRow& row = rows[i];
    if (i == 0 || rows[i - 1].pass != row.pass) {
      lines.push_back({row.begins, row.ends, "pass\t" + std::to_string(row.pass)});
      for (std::size_t j = i; j < rows.size() && rows[j].pass == row.pass; ++j)
        lines.back().ends = rows[j].ends;
    }
    lines.push_back({row.begins, row.ends,
                     "row\t" + std::to_string(row.pass) + "\t" + std::to_string(row.row) + "\t" +
                         secondsText(row.spoken) + "\t" + secondsText(row.planned)});
  }
}

}  // namespace

void print(std::ostream& out, const model::Timeline& timeline) {
  std::vector<Line> lines;
  addRows(lines, timeline.rows);
  for (const model::TimedHold& hold : timeline.holds) lines.push_back({hold.begins, hold.ends, "hold"});
  for (const model::TimedSound& sound : timeline.sounds) {
    const std::string kind = sound.prompt == 0 ? "file" : "prompt\t" + std::to_string(sound.prompt);
    lines.push_back({sound.begins, sound.ends, kind + "\t" + escaped(sound.name)});
  }
  for (const model::TimedCommand& command : timeline.music)
    lines.push_back({command.at, command.at, "music\t" + escaped(command.command)});
  lines.push_back({timeline.end, timeline.end, "end"});
  std::stable_sort(lines.begin(), lines.end(),
                   [](const Line& a, const Line& b) { return a.begins < b.begins; });
  for (const Line& line : lines)
    out << secondsText(line.begins) << '\t' << secondsText(line.ends) << '\t' << line.what << '\n';
}

}  // namespace rehearsal
