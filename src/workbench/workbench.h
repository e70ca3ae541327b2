#pragma once

#include <array>
#include <cstdint>

#include "datafile/document.h"
#include "interact/user.h"

namespace kov {

/// One of everything: what the main window, or kovbatch's runner, owns for the whole run.
struct Workbench {
  Workbench(Messages& messages, const WindowFacts& facts);

  Document document;
  CurrentFile file;
  /// Where the main window stands; the catalogue takes its geometry from here.
  WindowFacts window;

  /// Index of the page that is shown.
  int active_page = 0;
  /// The entry whose column is selected on the Algadd page.
  int current_entry = 0;
  /// The check boxes "Destination = Range 1" and "Destination = Range 2".
  std::array<bool, 2> range_is_destination = {true, true};
  /// Graph1's check boxes: CB0qre, CB0qim, CB0qq, CB0qa, CB0cntAt, CB1qre, ...
  std::array<bool, 10> graph1_checked{};

  /// Takes the parameters' values to whatever shows or uses them: table indices, check boxes.
  void apply_parameters(Messages& messages);

  /// The captions of the main window: the status line of the store.
  void show_status(Progress& progress) const;
};

}  // namespace kov
