#pragma once

#include <string_view>

namespace kov {

/// Whoever shows a workbench: commands and edits say here what they changed, so that what is on display
/// follows. This one shows nothing, which is all that a workbench without pages needs.
class Display {
 public:
  virtual ~Display() = default;

  /// Another page, or the same one again, was chosen.
  virtual void page_chosen() {}
  /// The store, or the slice through it.
  virtual void lattices_changed() {}
  /// The current Algadd table's index, or entries of a table; or the table menu was used.
  virtual void algadd_changed() {}
  /// The current range table's index, or what stands in the table.
  virtual void ranges_changed() {}
  /// The parameter's value was set and applied.
  virtual void parameter_changed(std::string_view) {}
  /// One of Graph1's check boxes was clicked.
  virtual void graph1_box_changed() {}
  /// Graph1's label Label_g1_oplot was clicked, and its parameter set.
  virtual void graph1_oplot_changed() {}
  /// The data were given another file.
  virtual void file_renamed() {}
  /// A read has replaced everything, parameters included, and the page to be shown is chosen.
  virtual void document_changed() {}
};

}  // namespace kov
