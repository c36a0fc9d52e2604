#pragma once
// Hands a record over to a list that owns what it points to.
#include <list>
#include <memory>

namespace corvane {

template <typename Record>
void append_record(std::list<Record*>& records, std::unique_ptr<Record> record) {
  records.push_back(record.get());
  static_cast<void>(record.release());
}

}  // namespace corvane
