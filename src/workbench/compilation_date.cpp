#include "workbench/compilation_date.h"

namespace kov {

const char* const CompilationDateClass::date = __DATE__;

}  // namespace kov
