#pragma once

#include <string>

#include "datafile/document.h"
#include "datafile/point_writer.h"
#include "datafile/text_buffer.h"
#include "datafile/writer.h"

namespace kov {

/// What a data file says about itself.
struct FileHead {
  std::string file_name;
  std::string date_time;
  WithLattices lattices = WithLattices::yes;
};

/// Puts the whole data file into out, block by block in the one order in which it is written. False
/// when after_points ended it. Does not flush.
bool put_data_file(TextBuffer& out, const Document& document, const FileHead& head,
                   const AfterPoints& after_points);

}  // namespace kov
