#pragma once

#include <string>
#include <string_view>

#include "datafile/document.h"
#include "text/tokens.h"

namespace kov {

/// A line of fixed fields, past its key.
struct DataLine {
  Document& document;
  std::string_view key;
  Tokens& fields;
};

/// Takes a line of fixed fields into the document; returns the message, empty on success. A line that
/// fails changes nothing.
using DataLineRule = std::string (*)(const DataLine& line);

/// The rule for a key; null when no line of fixed fields has it. The lines of points and the
/// announcement of their number are not among them, since they concern the read as a whole.
DataLineRule data_line_rule(std::string_view key, const cphclass& cph);

/// The message when anything but blanks is left behind the last field, else empty.
std::string end_of_line_message(const Tokens& fields, std::string_view subject);

}  // namespace kov
