#include "shortcuts/mapping/MappingSource.hpp"

#include "base/Hashing.hpp"

namespace quenby {

std::string MappingSource::id() const {
  if (kind_ == Kind::dock) {
    return "dock:" + std::to_string(position_);
  }
  return std::string("letter:") + letter_;
}

} // namespace quenby

std::size_t
std::hash<quenby::MappingSource>::operator()(const quenby::MappingSource& source) const noexcept {
  std::size_t seed = 0;
  quenby::hashCombine(seed, static_cast<int>(source.kind()));
  if (source.kind() == quenby::MappingSource::Kind::dock) {
    quenby::hashCombine(seed, source.position());
  } else {
    quenby::hashCombine(seed, source.letter());
  }
  return seed;
}
