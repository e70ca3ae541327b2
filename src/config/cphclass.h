#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "config/mmi.h"
#include "config/window_facts.h"
#include "interact/messages.h"
#include "text/tokens.h"

namespace kov {

/// The parameter holder: the one owner of the catalogue, and of the words by which a data file names
/// its lines. Reports misuse through Messages and never throws for it.
class cphclass {
 public:
  explicit cphclass(Messages& messages);

  /// Defines a parameter outside the uniform configuration; with the duplicate check on, the first
  /// definition of a keyword wins. A default outside its bounds is reported and stored all the same.
  void Ikpair(const std::string& keyword, std::int32_t i, const std::string& description, std::int32_t min,
              std::int32_t max);
  /// Likewise for a parameter of the uniform configuration.
  void Ukpair(const std::string& keyword, std::int32_t i, const std::string& description, std::int32_t min,
              std::int32_t max);
  void set_duplicate_check(bool on) { duplicate_check_ = on; }

  /// The value of a keyword; an unknown one is reported as an error and gives 0. O(log n): read once
  /// before a loop, not in it.
  std::int32_t kmi(std::string_view keyword) const;
  /// Sets a value within the catalogue's bounds; an unknown keyword or a value out of range is
  /// reported as an error, changes nothing and gives false.
  bool setkmi_1(std::string_view keyword, std::int32_t value);
  /// Likewise for a value as it was typed. An integer beyond 32 bits is out of range, too, and reported
  /// as it was typed; of a text that is no integer it is reported that i is no int.
  bool set_from_text(std::string_view keyword, std::string_view text);

  /// Takes the rest of a line "keyword i min max ucfg" into the catalogue. Unknown keywords, and with
  /// all false those outside the uniform configuration, are skipped. The value is compared with the
  /// bounds of the line, not of the catalogue: a hand-edited line may widen its own range. Returns the
  /// message, empty on success.
  std::string read_configuration_line(std::string_view keyword, Tokens& rest, bool all);

  /// Empties the catalogue and defines every parameter with its default. Where memory runs out, the old
  /// catalogue stays.
  void InitPrgPar(const WindowFacts& window);

  const Kmap& kmap() const { return kmap_; }
  /// The catalogue as InitPrgPar defines it; this one stays.
  Kmap defaults(const WindowFacts& window) const;
  /// Takes over a catalogue that was made before. Needs no memory, so that an operation which went wrong,
  /// be it for want of memory, can always go back.
  void restore(Kmap saved) noexcept { kmap_.swap(saved); }

  // The words of a data file's lines.
  const char comment_character = ';';
  const std::string e_dt = "e_dt";
  const std::string e_l = "e_l";
  const std::string e_lpd = "e_lpd";
  const std::string e_xdim_ydim = "e_xdim_ydim";
  const std::string e_aa_imm_p = "e_aa_imm_p";
  const std::string e_g2at = "e_g2at";
  const std::string e_aa = "e_aa";
  const std::string e_lkoffset = "e_lkoffset";
  const std::string e_ix1g_ix2g_iy1g2_iy2g2 = "e_ix1g_ix2g_iy1g2_iy2g2";
  const std::string e_sums1_range1min = "e_sums1_range1min";
  const std::string e_sums1_range1max = "e_sums1_range1max";
  const std::string e_sums1_range2min = "e_sums1_range2min";
  const std::string e_sums1_range2max = "e_sums1_range2max";

 private:
  /// Nothing stands for an integer beyond 32 bits; the text is what reports show.
  bool set(std::string_view keyword, std::optional<std::int32_t> value, std::string_view text);
  void define(const std::string& keyword, MMI parameter, const char* function);

  Messages& messages_;
  Kmap kmap_;
  bool duplicate_check_ = true;
};

}  // namespace kov
