#include "app/OneTimeConfigurationFailureReporter.hpp"
#include "app/SystemConfigurationFailurePanelPresenter.hpp"
#include "base/InMemoryKeyValueStore.hpp"

#include <deque>
#include <gtest/gtest.h>

namespace quenby {
namespace {

struct PanelRecord {
  ConfigurationFailure failure;
  int closeCount = 0;
};

class RecordingPanel final : public ConfigurationFailurePanel {
public:
  explicit RecordingPanel(PanelRecord& record) : record_(record) {}
  void close() override { ++record_.closeCount; }

private:
  PanelRecord& record_;
};

class RecordingPanelFactory final : public ConfigurationFailurePanelMaking {
public:
  std::unique_ptr<ConfigurationFailurePanel> makePanel(const ConfigurationFailure& f) override {
    return std::make_unique<RecordingPanel>(panels.emplace_back(PanelRecord{f}));
  }
  std::deque<PanelRecord> panels;
};

const ConfigurationFailure kDockFailure{"switch.configuration.dock.4.empty-position",
                                        "Dock Position 4 Is Empty", "Pin an app to the Dock."};
const ConfigurationFailure kSaveFailure{"mapping.persistence.normalization-save",
                                        "Letter Mapping Cleanup Could Not Be Saved", "Disk full."};

struct ReportingFixture {
  InMemoryKeyValueStore defaults;
  RecordingPanelFactory factory;
  SystemConfigurationFailurePanelPresenter presenter{factory};
};

TEST(ConfigurationFailureReportingTest, ShowsAnIdOnceEvenAcrossRelaunches) {
  ReportingFixture f;
  OneTimeConfigurationFailureReporter reporter(f.defaults, &f.presenter);
  reporter.report(kDockFailure);
  reporter.report(kDockFailure);
  ASSERT_EQ(f.factory.panels.size(), 1U);
  EXPECT_EQ(f.factory.panels[0].failure, kDockFailure);
  EXPECT_EQ(f.defaults.object("configurationFailure.reported.switch.configuration.dock.4.empty-"
                              "position"),
            PropertyListValue(true));

  OneTimeConfigurationFailureReporter relaunched(f.defaults, &f.presenter);
  relaunched.report(kDockFailure);
  EXPECT_EQ(f.factory.panels.size(), 1U);
}

TEST(ConfigurationFailureReportingTest, ANewFailureClosesThePanelStillShowing) {
  ReportingFixture f;
  OneTimeConfigurationFailureReporter reporter(f.defaults, &f.presenter);
  reporter.report(kDockFailure);
  reporter.report(kSaveFailure);
  ASSERT_EQ(f.factory.panels.size(), 2U);
  EXPECT_EQ(f.factory.panels[0].closeCount, 1);
  EXPECT_EQ(f.factory.panels[1].failure, kSaveFailure);
  EXPECT_EQ(f.factory.panels[1].closeCount, 0);
  EXPECT_NE(f.presenter.panel(), nullptr);
}

TEST(ConfigurationFailureReportingTest, AFailureReportedWithoutPresenterIsNeverShown) {
  ReportingFixture f;
  OneTimeConfigurationFailureReporter reporter(f.defaults);
  reporter.report(kDockFailure);
  EXPECT_TRUE(f.defaults.isTrue(OneTimeConfigurationFailureReporter::markerKey(kDockFailure.id)));

  reporter.setPresenter(&f.presenter);
  reporter.report(kDockFailure);
  EXPECT_TRUE(f.factory.panels.empty());
  reporter.report(kSaveFailure);
  EXPECT_EQ(f.factory.panels.size(), 1U);

  reporter.setPresenter(nullptr);
  reporter.report({"usageAnalytics.persistence.save", "t", "m"});
  EXPECT_EQ(f.factory.panels.size(), 1U);
}

TEST(ConfigurationFailureReportingTest, OnlyABooleanTrueMarksAnIdAsReported) {
  for (const PropertyListValue& marker :
       {PropertyListValue(1), PropertyListValue("true"), PropertyListValue("YES"),
        PropertyListValue(false), PropertyListValue(1.0)}) {
    ReportingFixture f;
    const auto key = OneTimeConfigurationFailureReporter::markerKey(kDockFailure.id);
    f.defaults.set(key, marker);
    OneTimeConfigurationFailureReporter reporter(f.defaults, &f.presenter);
    reporter.report(kDockFailure);
    EXPECT_EQ(f.factory.panels.size(), 1U) << PropertyListValue::kindName(marker.kind());
    EXPECT_EQ(f.defaults.object(key), PropertyListValue(true));
  }
}

} // namespace
} // namespace quenby
