#include "shortcuts/mapping/ApplicationResolution.hpp"

#include "base/Hashing.hpp"

namespace quenby {

std::optional<FileURL> ApplicationResolution::resolvedURL() const {
  if (kind_ != Kind::resolved) {
    return std::nullopt;
  }
  return urls_.front();
}

const std::vector<FileURL>& ApplicationResolution::candidatePaths() const {
  static const std::vector<FileURL> none;
  return kind_ == Kind::ambiguous ? urls_ : none;
}

const char* ApplicationResolution::name() const {
  switch (kind_) {
  case Kind::resolved:
    return "resolved";
  case Kind::ambiguous:
    return "ambiguous";
  case Kind::notFound:
    return "notFound";
  }
  return "notFound";
}

} // namespace quenby

std::size_t std::hash<quenby::ApplicationResolution>::operator()(
    const quenby::ApplicationResolution& resolution) const noexcept {
  using Kind = quenby::ApplicationResolution::Kind;
  std::size_t seed = 0;
  switch (resolution.kind()) {
  case Kind::resolved:
    quenby::hashCombine(seed, 0);
    quenby::hashCombine(seed, *resolution.resolvedURL());
    break;
  case Kind::notFound:
    quenby::hashCombine(seed, 1);
    break;
  case Kind::ambiguous:
    quenby::hashCombine(seed, 2);
    quenby::hashCombine(seed, resolution.candidatePaths().size());
    for (const auto& url : resolution.candidatePaths()) {
      quenby::hashCombine(seed, url);
    }
    break;
  }
  return seed;
}
