#include "shortcuts/running/ApplicationIconCache.hpp"

#include "base/ManualScheduler.hpp"
#include "shortcuts/running/MainThreadApplicationIconWorkScheduler.hpp"

#include <deque>
#include <gtest/gtest.h>
#include <latch>
#include <thread>

namespace quenby {
namespace {

using Paths = std::vector<std::string>;

// Each icon's bytes are its bundle's path, so a test can tell whose icon it got.
PreparedApplicationIcon iconOf(const FileURL& url) {
  return {.encoding = PreparedApplicationIcon::Encoding::png,
          .bitmapData = std::vector<std::uint8_t>(url.path().begin(), url.path().end()),
          .pixelsWide = 1,
          .pixelsHigh = 1};
}

class RecordingLoader final : public ApplicationIconLoading {
public:
  [[nodiscard]] std::optional<PreparedApplicationIcon>
  loadIcon(const FileURL& bundleURL) const override {
    loaded.push_back(bundleURL.path());
    return bundleURL.path() == failing ? std::nullopt : std::optional(iconOf(bundleURL));
  }
  mutable Paths loaded;
  std::string failing;
};

// Holds each item until the test finishes it.
class RecordingWorkScheduler final : public ApplicationIconWorkScheduling {
public:
  void schedule(Work work, Completion completion) override {
    items.emplace_back(std::move(work), std::move(completion));
  }
  void finishNext() {
    auto [work, completion] = std::move(items.front());
    items.pop_front();
    completion(work());
  }
  void finishAll() {
    while (!items.empty()) {
      finishNext();
    }
  }
  std::deque<std::pair<Work, Completion>> items;
};

using ResolutionKind = ApplicationResolution::Kind;

AppMapping mapping(MappingSource source, const std::string& path,
                   ResolutionKind kind = ResolutionKind::resolved) {
  const FileURL url = FileURL::fromPath(path);
  return {.displayName = path,
          .bundleIdentifier = path,
          .lastKnownURL = url,
          .resolution =
              kind == ResolutionKind::resolved ? ApplicationResolution::resolved(url)
              : kind == ResolutionKind::notFound
                  ? ApplicationResolution::notFound()
                  : ApplicationResolution::ambiguous({url, FileURL::fromPath("/x" + path)}),
          .source = source};
}

KeyboardMappingSnapshot snapshot(std::uint64_t revision, std::uint64_t catalogRevision,
                                 const std::vector<AppMapping>& mappings) {
  KeyboardMappingSnapshot result;
  result.revision = revision;
  result.applicationCatalogRevision = catalogRevision;
  for (const auto& mapping : mappings) {
    if (mapping.source.kind() == MappingSource::Kind::dock) {
      result.numberEntries.set(mapping.source.position(), NumberMappingEntry::mapped(mapping));
    } else {
      result.letterMappings.emplace(mapping.source.letter(), mapping);
    }
  }
  return result;
}

const AppMapping kMail = mapping(MappingSource::dock(1), "/Mail.app");
const AppMapping kNotes = mapping(MappingSource::dock(2), "/Notes.app");

struct CacheFixture : ::testing::Test {
  std::shared_ptr<RecordingLoader> loader = std::make_shared<RecordingLoader>();
  RecordingWorkScheduler scheduler;
  ApplicationIconCache cache{loader, scheduler};
  int arrivals = 0;
  ObservationToken observation = cache.observeIcons([this] { ++arrivals; });

  // Whose icon the cache serves for `target`; empty for none.
  std::string iconPath(const AppMapping& target) const {
    const auto icon = cache.icon(target);
    return icon ? std::string(icon->bitmapData.begin(), icon->bitmapData.end()) : "";
  }
};

TEST_F(CacheFixture, LoadsEachResolvedApplicationOnceOneAtATimeDockFirst) {
  const AppMapping safari = mapping(MappingSource::letter('A'), "/Safari.app");
  const AppMapping mailByLetter = mapping(MappingSource::letter('M'), "/./Mail.app");
  const AppMapping lost = mapping(MappingSource::dock(3), "/Lost.app", ResolutionKind::notFound);
  const AppMapping twin =
      mapping(MappingSource::letter('T'), "/Twin.app", ResolutionKind::ambiguous);
  cache.update(snapshot(1, 1, {safari, mailByLetter, lost, twin, kNotes, kMail}));
  EXPECT_EQ(scheduler.items.size(), 1U);
  EXPECT_EQ(iconPath(kMail), "") << "still loading";

  scheduler.finishNext();
  EXPECT_EQ(arrivals, 1);
  EXPECT_EQ(iconPath(mailByLetter), "/Mail.app") << "keyed by the standardised URL";
  EXPECT_EQ(scheduler.items.size(), 1U);
  scheduler.finishAll();
  EXPECT_EQ(loader->loaded, (Paths{"/Mail.app", "/Notes.app", "/Safari.app"}));
  EXPECT_EQ(iconPath(lost) + iconPath(twin), "");

  cache.update(snapshot(1, 1, {kMail}));
  cache.update(snapshot(2, 1, {safari, kNotes, kMail}));
  EXPECT_TRUE(scheduler.items.empty()) << "loaded icons are kept";
}

TEST_F(CacheFixture, AnIconWhoseMappingWentAwayDuringItsLoadIsDiscarded) {
  cache.update(snapshot(1, 1, {kMail, kNotes}));
  cache.update(snapshot(2, 1, {kNotes}));
  scheduler.finishAll();
  EXPECT_EQ(arrivals, 1);
  EXPECT_EQ(iconPath(kMail), "");

  // Back while its dropped load still runs: loaded again behind the stale result.
  cache.update(snapshot(3, 1, {kMail}));
  cache.update(snapshot(4, 1, {}));
  cache.update(snapshot(5, 1, {kMail}));
  ASSERT_EQ(scheduler.items.size(), 1U);
  scheduler.finishNext();
  EXPECT_EQ(arrivals, 1);
  scheduler.finishAll();
  EXPECT_EQ(iconPath(kMail), "/Mail.app");
  EXPECT_EQ(loader->loaded, (Paths{"/Mail.app", "/Notes.app", "/Mail.app", "/Mail.app"}));
}

TEST_F(CacheFixture, AFailedLoadIsRetriedWithTheNextSnapshotAndACatalogChangeReloadsAll) {
  loader->failing = "/Notes.app";
  cache.update(snapshot(1, 1, {kMail, kNotes}));
  scheduler.finishAll();
  EXPECT_EQ(arrivals, 1);
  loader->failing.clear();
  cache.update(snapshot(2, 1, {kMail, kNotes}));
  scheduler.finishAll();
  EXPECT_EQ(arrivals, 2);

  cache.update(snapshot(2, 2, {kMail, kNotes}));
  EXPECT_EQ(iconPath(kMail), "") << "a bundle may have changed its icon";
  // A change while a load runs makes its result stale too.
  cache.update(snapshot(2, 3, {kMail, kNotes}));
  scheduler.finishNext();
  EXPECT_EQ(iconPath(kMail), "");
  scheduler.finishAll();
  EXPECT_EQ(iconPath(kMail) + iconPath(kNotes), "/Mail.app/Notes.app");
  EXPECT_EQ(loader->loaded, (Paths{"/Mail.app", "/Notes.app", "/Notes.app", "/Mail.app",
                                   "/Mail.app", "/Notes.app"}));
}

// Outlives the loader, which may die on the worker as soon as the load is released.
struct Gate {
  std::latch started{1};
  std::latch release{1};
};

class BlockingLoader final : public ApplicationIconLoading {
public:
  explicit BlockingLoader(Gate& gate) : gate_(gate) {}
  [[nodiscard]] std::optional<PreparedApplicationIcon>
  loadIcon(const FileURL& bundleURL) const override {
    gate_.started.count_down();
    gate_.release.wait();
    return iconOf(bundleURL);
  }

private:
  Gate& gate_;
};

// Loads on a thread of its own; the test delivers the result once the thread has ended.
struct ThreadedWorkScheduler final : ApplicationIconWorkScheduling {
  void schedule(Work work, Completion completion) override {
    worker = std::jthread([this, work = std::move(work), completion]() mutable {
      auto icon = work();
      work = nullptr;
      delivery = [completion, icon] { completion(icon); };
    });
  }
  std::function<void()> delivery;
  std::jthread worker;
};

TEST(ApplicationIconCacheLifetime, AnIconArrivingAfterTheCacheIsGoneChangesNothing) {
  Gate gate;
  ThreadedWorkScheduler scheduler;
  auto loader = std::make_shared<BlockingLoader>(gate);
  const std::weak_ptr<BlockingLoader> weakLoader = loader;
  auto cache = std::make_unique<ApplicationIconCache>(loader, scheduler);
  int arrivals = 0;
  const ObservationToken observation = cache->observeIcons([&] { ++arrivals; });
  cache->update(snapshot(1, 1, {kMail}));
  gate.started.wait();

  loader.reset();
  cache.reset();
  gate.release.count_down();
  scheduler.worker.join();
  scheduler.delivery();
  EXPECT_EQ(arrivals, 0);
  EXPECT_TRUE(weakLoader.expired()) << "the finished work let its loader go";
}

} // namespace
} // namespace quenby
