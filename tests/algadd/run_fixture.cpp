#include "run_fixture.h"

#include "text/integers.h"

namespace kov {

void HookedProgress::show_box(const Box& box) {
  log.push_back("box" + box.title + " " + int_text(box.from) + ".." + int_text(box.to) + " at " +
                int_text(box.position));
  on_box();
}

std::vector<std::string> HookedProgress::headlines() const {
  const std::string mark = "headline: ";
  std::vector<std::string> texts;
  for (const std::string& line : log) {
    if (line.starts_with(mark)) texts.push_back(line.substr(mark.size()));
  }
  return texts;
}

AlgaddEntry entry_of(const cotyp& p, std::int32_t dk1, std::int32_t l, std::int32_t ldest, std::int32_t dn) {
  return {.p = p, .ldest = ldest, .offset = Lk::at(l, dn, dk1)};
}

RunFixture::RunFixture()
    : scripted([this](const std::string& report) { transcript.push_back(report); }), cph(scripted) {
  cph.InitPrgPar({});
}

void RunFixture::set(const std::string& keyword, std::int32_t value) {
  Kmap changed = cph.kmap();
  changed.at(keyword).i = value;
  cph.restore(std::move(changed));
}

void RunFixture::make_table(const std::vector<AlgaddEntry>& entries, int table) {
  int i = 0;
  for (const AlgaddEntry& entry : entries) algadd.set_entry(table, i++, entry);
}

void RunFixture::walking_table() { make_table({entry_of(1, 1), entry_of(1, -1)}); }

void RunFixture::copying_table() {
  algadd.erase_table(0);
  make_table({entry_of(1)});
}

void RunFixture::make_rows(std::int32_t last, std::int32_t points) {
  lmap.clear();
  for (std::int32_t n = 0; n <= last; ++n) {
    for (std::int32_t k = 0; k < points; ++k) lmap.set(Lk::at(0, n, k), k + 1);
  }
}

void RunFixture::lift_limits() {
  for (const char* limit :
       {"Algadd_mem1_DisplayAfterKB", "Algadd_TM_DelSmallestAfterKB", "MaxAllowedMemOccupationInKB"}) {
    set(limit, highest_int);
  }
}

bool RunFixture::run(std::int32_t steps, RunMode mode, int table, const RunClock& clock,
                     const RunThreads& threads) {
  const RunRequest request{.table = table, .mode = mode, .intro = {}, .steps = steps};
  return perform_algadd(algadd, lmap, cph, keep, request, {scripted, scripted, progress}, clock, threads);
}

}  // namespace kov
