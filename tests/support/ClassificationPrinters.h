// Readable failure messages for classification results in GoogleTest assertions.
#pragma once

#include <ostream>

#include "Classification/CategoryEngine.h"

namespace larkspan {

inline void PrintTo(const ClassificationResult& result, std::ostream* os) {
    *os << "(" << result.categoryID << ", " << result.confidence << ")";
}

}  // namespace larkspan
