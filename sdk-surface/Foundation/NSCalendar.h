// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSDate.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSCalendarUnit) {
  NSCalendarUnitEra = 1UL << 1,
  NSCalendarUnitYear = 1UL << 2,
  NSCalendarUnitMonth = 1UL << 3,
  NSCalendarUnitDay = 1UL << 4,
};

typedef NS_OPTIONS(NSUInteger, NSCalendarOptions) {
  NSCalendarWrapComponents = 1UL << 0,
};

@interface NSCalendar : NSObject <NSCopying>
@property(class, readonly, copy) NSCalendar* currentCalendar;
- (NSDate*)startOfDayForDate:(NSDate*)date;
- (nullable NSDate*)dateByAddingUnit:(NSCalendarUnit)unit
                               value:(NSInteger)value
                              toDate:(NSDate*)date
                             options:(NSCalendarOptions)options;
- (void)getEra:(nullable NSInteger*)eraValuePointer
          year:(nullable NSInteger*)yearValuePointer
         month:(nullable NSInteger*)monthValuePointer
           day:(nullable NSInteger*)dayValuePointer
      fromDate:(NSDate*)date;
@end

NS_ASSUME_NONNULL_END
