#include "config/cphclass.h"

#include "config/configuration_line.h"
#include "config/definition_table.h"
#include "text/integers.h"

namespace kov {

namespace {

bool is_inside(std::int32_t value, const MMI& parameter) {
  return parameter.min <= value && value <= parameter.max;
}

/// True for the text of an integer of any size.
bool is_integer(std::string_view text) {
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// How the message about a keyword begins that a function does not find.
std::string unknown_keyword(const char* function, std::string_view keyword) {
  return std::string(function) + ":\n   " + std::string(keyword) +
         "\nis no valid keyword,\nperhaps wrong typing in source.\n";
}

}  // namespace

cphclass::cphclass(Messages& messages) : messages_(messages) {}

void cphclass::Ikpair(const std::string& keyword, std::int32_t i, const std::string& description,
                      std::int32_t min, std::int32_t max) {
  define(keyword, {i, min, max, description, false}, "Ikpair");
}

void cphclass::Ukpair(const std::string& keyword, std::int32_t i, const std::string& description,
                      std::int32_t min, std::int32_t max) {
  define(keyword, {i, min, max, description, true}, "Ukpair");
}

std::int32_t cphclass::kmi(std::string_view keyword) const {
  const auto found = kmap_.find(keyword);
  if (found != kmap_.end()) return found->second.i;
  messages_.error(unknown_keyword("kmi", keyword) + "0 returned");
  return 0;
}

bool cphclass::setkmi_1(std::string_view keyword, std::int32_t value) {
  return set(keyword, value, int_text(value));
}

bool cphclass::set_from_text(std::string_view keyword, std::string_view text) {
  if (kmap_.contains(keyword) && !is_integer(text)) {
    messages_.error(std::string(keyword) + ": i is no int");
    return false;
  }
  return set(keyword, parse_int32(text), text);
}

bool cphclass::set(std::string_view keyword, std::optional<std::int32_t> value, std::string_view text) {
  const auto found = kmap_.find(keyword);
  if (found == kmap_.end()) {
    messages_.error(unknown_keyword("setkmi_1", keyword) + " kmi is not set");
    return false;
  }
  MMI& parameter = found->second;
  if (!value || !is_inside(*value, parameter)) {
    messages_.error("setkmi_1:\n   " + found->first + "\ninput i=" + std::string(text) + "\nout of range [" +
                    int_text(parameter.min) + ".." + int_text(parameter.max) + "]\n kmi is not set");
    return false;
  }
  parameter.i = *value;
  return true;
}

std::string cphclass::read_configuration_line(std::string_view keyword, Tokens& rest, bool all) {
  const auto found = kmap_.find(keyword);
  if (found == kmap_.end() || (!all && !found->second.ucfg)) return {};
  ConfigurationLine line;
  std::string message = parse_configuration_line(keyword, rest, line);
  if (message.empty()) found->second.i = line.i;
  return message;
}

void cphclass::InitPrgPar(const WindowFacts& window) { restore(defaults(window)); }

Kmap cphclass::defaults(const WindowFacts& window) const {
  cphclass fresh(messages_);
  for (const auto& [keyword, parameter] : definition_table(window)) {
    const auto& [i, min, max, description, ucfg] = parameter;
    if (ucfg) {
      fresh.Ukpair(keyword, i, description, min, max);
    } else {
      fresh.Ikpair(keyword, i, description, min, max);
    }
  }
  return std::move(fresh.kmap_);
}

void cphclass::define(const std::string& keyword, MMI parameter, const char* function) {
  if (duplicate_check_ && kmap_.contains(keyword)) {
    messages_.error(keyword + "\n already defined, new definition\n by " + function + " ignored");
    return;
  }
  if (!is_inside(parameter.i, parameter)) messages_.error(keyword + " wrong initialized");
  kmap_.insert_or_assign(keyword, std::move(parameter));
}

}  // namespace kov
