// NSMetadataQuery for application bundles, behind the catalog monitor's Spotlight interface.
// Start and stop on the main thread; gathering and update notifications are delivered on the
// main queue. The query and its observers live from start to stop (or destruction). The handler
// is owned here and held weakly by the notification blocks, so a notification already queued
// when the query stops delivers nothing. A query that Spotlight refuses to start is logged and
// left stopped (a later start tries again); the catalog then relies on Launch Services and its
// poll.

#include "shortcuts/catalog/macos/SystemApplicationSpotlightQuery.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <CoreServices/CoreServices.h>
#import <Foundation/Foundation.h>
#include <os/log.h>
#include <string>
#include <utility>

namespace quenby {

namespace {

constexpr NSTimeInterval kBatchingInterval = 0.25;
constexpr const char* kFallbackSubsystem = "com.brimfold.Quenby";

// The adapter has no logger of the core's, and a refused start is rare enough to open a log
// handle for it alone.
void logRefusedStart() {
  std::string subsystem = kFallbackSubsystem;
  if (NSString* identifier = NSBundle.mainBundle.bundleIdentifier) {
    subsystem = utf8String(identifier).value_or(subsystem);
  }
  os_log_with_type(os_log_create(subsystem.c_str(), "Catalog"), OS_LOG_TYPE_ERROR,
                   "Spotlight refused to start the application query; installed applications "
                   "are found through Launch Services alone");
}

// Reads every result with live updates held back, so the result list cannot change mid-read.
ApplicationCandidateMap candidates(NSMetadataQuery* query) {
  ApplicationCandidateMap found;
  [query disableUpdates];
  const NSUInteger count = query.resultCount;
  for (NSUInteger index = 0; index < count; ++index) {
    @autoreleasepool {
      id identifier = [query valueOfAttribute:(__bridge NSString*)kMDItemCFBundleIdentifier
                             forResultAtIndex:index];
      id path = [query valueOfAttribute:(__bridge NSString*)kMDItemPath forResultAtIndex:index];
      if (![identifier isKindOfClass:[NSString class]] || ![path isKindOfClass:[NSString class]]) {
        continue;
      }
      auto identifierText = utf8String(identifier);
      auto pathText = utf8String(path);
      if (identifierText && pathText) {
        found[*identifierText].push_back(FileURL::fromPath(*pathText));
      }
    }
  }
  [query enableUpdates];
  return found;
}

} // namespace

struct SystemApplicationSpotlightQuery::Running {
  NSMetadataQuery* query = nil;
  NSMutableArray<id<NSObject>>* observers = nil;
  std::shared_ptr<ResultsHandler> handler;
};

SystemApplicationSpotlightQuery::SystemApplicationSpotlightQuery() = default;

SystemApplicationSpotlightQuery::~SystemApplicationSpotlightQuery() { stop(); }

void SystemApplicationSpotlightQuery::start(ResultsHandler resultsHandler) {
  if (running_) {
    return;
  }
  auto running = std::make_unique<Running>();
  running->handler = std::make_shared<ResultsHandler>(std::move(resultsHandler));
  std::weak_ptr<ResultsHandler> weakHandler = running->handler;

  NSMetadataQuery* query = [[NSMetadataQuery alloc] init];
  query.predicate =
      [NSPredicate predicateWithFormat:@"%K == %@", (__bridge NSString*)kMDItemContentTypeTree,
                                       @"com.apple.application-bundle"];
  query.searchScopes = @[ NSMetadataQueryLocalComputerScope ];
  query.notificationBatchingInterval = kBatchingInterval;
  running->query = query;

  __weak NSMetadataQuery* weakQuery = query;
  void (^deliver)(NSNotification*) = ^(NSNotification*) {
    NSMetadataQuery* liveQuery = weakQuery;
    auto handler = weakHandler.lock();
    if (liveQuery == nil || !handler) {
      return;
    }
    (*handler)(candidates(liveQuery));
  };
  NSNotificationCenter* center = NSNotificationCenter.defaultCenter;
  running->observers = [NSMutableArray arrayWithCapacity:2];
  for (NSNotificationName name in
       @[ NSMetadataQueryDidFinishGatheringNotification, NSMetadataQueryDidUpdateNotification ]) {
    [running->observers addObject:[center addObserverForName:name
                                                      object:query
                                                       queue:NSOperationQueue.mainQueue
                                                  usingBlock:deliver]];
  }
  running_ = std::move(running);
  if (![query startQuery]) {
    logRefusedStart();
    stop();
  }
}

void SystemApplicationSpotlightQuery::stop() {
  const std::unique_ptr<Running> running = std::move(running_);
  if (!running) {
    return;
  }
  NSNotificationCenter* center = NSNotificationCenter.defaultCenter;
  for (id<NSObject> observer in running->observers) {
    [center removeObserver:observer];
  }
  [running->query stopQuery];
}

} // namespace quenby
