// The code pages that Windows has.
#pragma once

#include "document/core/codec.h"

namespace document {

const CodePages& SystemCodePages();

}  // namespace document
