#ifndef VELTRIX_TESTS_CORE_DEFAULT_DOCUMENT_H_
#define VELTRIX_TESTS_CORE_DEFAULT_DOCUMENT_H_

#include <memory>

#include "settings/document.h"

namespace veltrix::testing {

// A document holding the defaults of `product`; on the heap, as the record is large.
inline std::unique_ptr<Document> DefaultDocument(int product) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, product);
  return doc;
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_CORE_DEFAULT_DOCUMENT_H_
