#include "Rows.h"
#include "Table.h"

namespace kestrel::bench {

void PrintProcessRows(const Band&) {}

}  // namespace kestrel::bench
