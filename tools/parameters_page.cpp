// Writes the help's page of program parameters from the table that defines them.
#include <fstream>
#include <iostream>
#include <string>

#include "config/definition_table.h"
#include "text/integers.h"

namespace {

using namespace kov;

constexpr const char* page_begin = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Program parameters</title>
<link rel="stylesheet" type="text/css" href="style.css">
</head>
<body>
<h1>Program parameters</h1>
<p>Every tunable integer of the program is a parameter. The <a href="config.html">Config page</a> shows and edits them in the
order of their keywords; here they stand by subject. <b>u</b> marks those of the
<a href="config.html#files">uniform configuration</a>. Memory is in KB of 1000 bytes, a stored point counts 176 bytes.
Widths and the place of the window are in pixels. A parameter from 0 to 1 is a switch. Coordinates are counted from 0,
which is n, to 31, which is the lattice index l.</p>
<p>The default place and size of the window are those that it has at the start; the figures here stand for them where
there is no window.</p>
<table>
<tr><th>keyword</th><th>default</th><th>range</th><th>u</th><th>description</th></tr>
)";
constexpr const char* page_end = "</table>\n</body>\n</html>\n";

std::string html_text(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '<') {
      escaped += "&lt;";
    } else if (c == '>') {
      escaped += "&gt;";
    } else if (c == '&') {
      escaped += "&amp;";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string range_of(const MMI& parameter) {
  if (parameter.max != highest_int) return int_text(parameter.min) + " to " + int_text(parameter.max);
  return parameter.min == lowest_int ? "any" : "from " + int_text(parameter.min);
}

std::string row_of(const Kpair& entry) {
  const auto& [keyword, parameter] = entry;
  return "<tr><td><a name=\"" + keyword + "\"></a><code>" + keyword + "</code></td><td>" +
         int_text(parameter.i) + "</td><td>" + range_of(parameter) + "</td><td>" +
         (parameter.ucfg ? "u" : "") + "</td><td>" + html_text(parameter.description) + "</td></tr>\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: parameters_page FILE\n";
    return 2;
  }
  std::ofstream page(argv[1], std::ios::binary);
  page << page_begin;
  for (const Kpair& entry : definition_table({})) page << row_of(entry);
  page << page_end << std::flush;
  if (page) return 0;
  std::cerr << "parameters_page: " << argv[1] << " could not be written\n";
  return 1;
}
