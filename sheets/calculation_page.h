#pragma once

#include <string>

#include "shell/print_surface.h"

namespace sheets {

/// The body of a printed calculation sheet: a title, and blocks of lines, each with a label, a
/// value and a unit in columns of a fixed-pitch font.
class CalculationPage {
 public:
  explicit CalculationPage(shell::PrintSurface& target) : target_(target) {}

  /// The sheet's title in the heading band, bold; the first block follows below the band.
  void Title(const std::string& text);
  /// The heading of a block.
  void Section(const std::string& text);
  /// A line: the value ends at a fixed column, counted in CP932 bytes, and the unit stands behind
  /// it. A value that is too long for its column moves to the right, and one that would leave the
  /// frame is set in smaller letters. An empty value has no unit. A long label takes its room from
  /// the value.
  void Line(const std::string& label, const std::string& value, const std::string& unit = {});
  /// More of the value of the line before, at its column.
  void Continued(const std::string& value);
  /// A text of its own at the column of the lines, for tables and remarks.
  void Text(const std::string& text);
  /// A line of a table, from the column of the section headings and closer to its neighbours.
  void Row(const std::string& text);
  /// What makes results doubtful, a line for each line of the text, marked as a remark.
  void Remarks(const std::string& text);
  /// Half a line of room.
  void Gap();
  /// A picture in the middle of the page, below what has been printed, that wide (twips).
  void Picture(const forms::Picture& picture, double width);

  /// Twips that are left above the foot band.
  double Room() const;

 private:
  void PrintInFrame(const std::string& text);
  void PrintAt(int column, double gap, const std::string& text);

  shell::PrintSurface& target_;
};

}  // namespace sheets
