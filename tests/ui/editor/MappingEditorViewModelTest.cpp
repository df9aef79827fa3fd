#include "ui/editor/MappingEditorViewModel.hpp"

#include "support/ApplicationBundleFixture.hpp"
#include "support/LetterStoreHarness.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

/// Dialogs answered by the test: the next location each one returns, or a cancellation.
class ScriptedFilePanels final : public MappingEditorFilePanels {
public:
  void chooseApplication(Answer answer) override { answer(application); }
  void chooseExportDestination(const std::string& suggestedName, Answer answer) override {
    offeredName = suggestedName;
    answer(exportDestination);
  }
  void chooseImportFile(Answer answer) override { answer(importFile); }

  std::optional<FileURL> application;
  std::optional<FileURL> exportDestination;
  std::optional<FileURL> importFile;
  std::string offeredName;
};

class MappingEditorViewModelTest : public ::testing::Test, protected LetterStoreHarness {
protected:
  MappingEditorViewModelTest() : store(makeStore()) {}

  [[nodiscard]] std::string letters() const {
    std::string described;
    for (const auto& [letter, mapping] : store->snapshot().letterMappings) {
      described += std::string(1, letter) + "=" + mapping.displayName + " ";
    }
    return described;
  }
  [[nodiscard]] const MappingEditorViewModel::Row& row(char letter) const {
    return editor.rows().at(static_cast<std::size_t>(letter - 'A'));
  }
  /// Writes `contents` to a file and imports it.
  void import(std::string_view contents) {
    bundles.writeFile("import.json", contents);
    panels.importFile = bundles.url("import.json");
    editor.importMappings();
  }

  ApplicationBundleFixture bundles;
  FileURL safari = bundles.createBundle("Applications/Safari.app", "com.apple.Safari", "Safari");
  FileURL notes = bundles.createBundle("Applications/Notes.app", "com.apple.Notes", "Notes");
  std::unique_ptr<KeyboardMappingStore> store;
  InstalledApplicationCatalog catalog{fileSystem, metadataReader, {bundles.url("Applications")}};
  ScriptedFilePanels panels;
  MappingEditorViewModel editor{*store, metadataReader, catalog, panels, fileSystem, localizer};
};

TEST_F(MappingEditorViewModelTest, AsksBeforeMovingAnApplicationAndHonoursEitherAnswer) {
  editor.assign('S', safari);
  ASSERT_EQ(letters(), "S=Safari ");
  int changes = 0;
  const auto token = editor.observe([&] { ++changes; });

  editor.assign('B', safari);
  ASSERT_TRUE(editor.moveConfirmation());
  EXPECT_EQ(editor.moveConfirmation()->message, "Safari is assigned to S. Move it to B?");
  EXPECT_EQ(editor.moveConfirmation()->moveButton, "Move");
  EXPECT_EQ(editor.moveConfirmation()->cancelButton, "Cancel");
  EXPECT_EQ(letters(), "S=Safari ");
  EXPECT_EQ(changes, 1);

  editor.cancelMove();
  EXPECT_FALSE(editor.moveConfirmation());
  EXPECT_EQ(letters(), "S=Safari ");

  editor.assign('B', safari);
  editor.confirmMove();
  EXPECT_FALSE(editor.moveConfirmation());
  EXPECT_EQ(letters(), "B=Safari ");
  EXPECT_EQ(row('B').applicationName, "Safari");
  EXPECT_EQ(row('S').statusText, "Not assigned");

  // Its own letter again, or another application onto a taken letter: nothing to ask.
  editor.assign('B', safari);
  editor.assign('B', notes);
  EXPECT_FALSE(editor.moveConfirmation());
  EXPECT_EQ(letters(), "B=Notes ");
}

TEST_F(MappingEditorViewModelTest, ShowsTheStoresRefusalUntilAChangeSucceeds) {
  bundles.writeFile("Applications/Readme.txt", "not an application");
  editor.assign('R', bundles.url("Applications/Readme.txt"));
  EXPECT_EQ(editor.errorText(), "Readme.txt is not a readable application bundle.");

  defaults.droppedKeys.insert("letterMappings.v1");
  editor.assign('N', notes);
  EXPECT_EQ(editor.errorText(), "The user defaults did not keep the letter mappings.");
  EXPECT_EQ(letters(), "");

  defaults.droppedKeys.clear();
  editor.assign('N', notes);
  EXPECT_EQ(editor.errorText(), "");
  editor.remove('N');
  EXPECT_EQ(letters(), "");
  EXPECT_EQ(row('N').status, MappingEditorViewModel::Row::Status::unassigned);
}

TEST_F(MappingEditorViewModelTest, DescribesEachLetterInWordsAndFollowsTheStore) {
  resolver.answers.emplace("com.apple.Notes", ApplicationResolution::notFound());
  resolver.answers.emplace(
      "com.apple.Safari",
      ApplicationResolution::ambiguous({bundles.url("A/Safari.app"), bundles.url("B/Safari.app")}));
  // Changed behind the editor's back, as the HUD or a relaunch's repair would.
  ASSERT_TRUE(store->setLetterMapping("N", notes));
  ASSERT_TRUE(store->setLetterMapping("S", safari));

  EXPECT_EQ(editor.rows().size(), 26u);
  EXPECT_EQ(row('N').statusText, "Not found. Assign it again.");
  EXPECT_EQ(row('N').location, notes.path());
  EXPECT_EQ(row('S').status, MappingEditorViewModel::Row::Status::ambiguous);
  EXPECT_EQ(row('S').statusText, "Several copies found. Assign the one to use.");

  resolver.answers.clear();
  ASSERT_TRUE(store->setLetterMapping("N", notes));
  EXPECT_EQ(row('N').statusText, "Installed");
}

TEST_F(MappingEditorViewModelTest, PickerAndChooseAssignTheSelectedLetter) {
  editor.open('K');
  editor.openPicker();
  editor.setPickerSearchText("note");
  ASSERT_EQ(editor.picker().applications().size(), 1u);
  editor.assignPickedApplication(0);
  EXPECT_EQ(letters(), "K=Notes ");

  editor.select('W');
  panels.application = safari;
  editor.chooseApplication();
  EXPECT_EQ(letters(), "K=Notes W=Safari ");
}

TEST_F(MappingEditorViewModelTest, ExportWritesTheStoredDocumentAndImportReadsItBack) {
  editor.assign('N', notes);
  editor.assign('S', safari);
  panels.exportDestination = bundles.url("Exported.json");
  editor.exportMappings();
  EXPECT_EQ(panels.offeredName, "Quenby Letter Mappings.json");
  const auto written = fileSystem.readFile(bundles.url("Exported.json").path(), 1 << 20);
  ASSERT_TRUE(written);
  EXPECT_EQ(std::string(written->begin(), written->end()), storedDocument());
  EXPECT_FALSE(editor.notice());

  editor.remove('N');
  editor.remove('S');
  panels.importFile = bundles.url("Exported.json");
  editor.importMappings();
  EXPECT_EQ(letters(), "N=Notes S=Safari ");
  ASSERT_TRUE(editor.notice());
  EXPECT_EQ(editor.notice()->title, "Letter Mappings Imported");
  EXPECT_EQ(editor.notice()->message, "Imported 2 letter mappings.");

  // A folder that cannot be written says so and keeps nothing half-written.
  panels.exportDestination = bundles.url("Missing/Exported.json");
  editor.exportMappings();
  ASSERT_TRUE(editor.notice());
  EXPECT_EQ(editor.notice()->title, "The Letter Mappings Could Not Be Exported");
}

TEST_F(MappingEditorViewModelTest, ImportKeepsGoodRecordsAndSaysWhyOthersWereSkipped) {
  editor.assign('N', notes);
  editor.assign('S', safari);
  // Records from another Mac need not be installed here; Safari moves from S to T.
  import(
      R"([{"letter":"m","bundleIdentifier":" com.apple.mail ","displayName":"Mail",)"
      R"("lastKnownURL":"file:///System/Applications/Mail.app"},)"
      R"({"letter":"AA","bundleIdentifier":"x","displayName":"X","lastKnownURL":"file:///X.app"},)"
      R"({"letter":"T","bundleIdentifier":"com.apple.Safari","displayName":"Safari",)"
      R"("lastKnownURL":"file:///Applications/Safari.app"},)"
      R"({"bundleIdentifier":"y","displayName":"Y","lastKnownURL":"file:///Y.app"},)"
      R"({"letter":"Q","bundleIdentifier":"q","displayName":"Q","lastKnownURL":"file:///Q.txt"},)"
      R"({"letter":"M","bundleIdentifier":"z","displayName":"Z","lastKnownURL":"file:///Z.app"},)"
      R"({"letter":"U","bundleIdentifier":"COM.APPLE.MAIL","displayName":"Mail 2",)"
      R"("lastKnownURL":"file:///Mail.app"},)"
      R"({"letter":"V","bundleIdentifier":"","displayName":"V","lastKnownURL":"file:///V.app"}])");

  EXPECT_EQ(letters(), "M=Mail N=Notes T=Safari ");
  ASSERT_TRUE(editor.notice());
  EXPECT_EQ(editor.notice()->message,
            "Imported 2 letter mappings.\n\n"
            "These records were not imported:\n"
            "Record 2 (letter \"AA\"): not a letter from A to Z\n"
            "Record 4: no letter\n"
            "Record 5 (letter \"Q\"): the location is not an application (.app)\n"
            "Record 6 (letter \"M\"): the letter is already taken by record 1\n"
            "Record 7 (letter \"U\"): Mail is already assigned by record 1\n"
            "Record 8 (letter \"V\"): no bundle identifier");
  EXPECT_EQ(store->records().front().bundleIdentifier, "com.apple.mail");
}

TEST_F(MappingEditorViewModelTest, AFileThatIsNoListOfMappingsChangesNothing) {
  editor.assign('N', notes);
  const std::string before = storedDocument();
  const std::vector<std::pair<std::string, std::string>> files{
      {"{\"letter\":", "The file is not JSON."},
      {"{\"letter\":\"A\"}",
       "The file is not a list of letter mappings (a JSON array of objects)."},
      {"[{\"letter\":\"A\"}, 3]",
       "The file is not a list of letter mappings (a JSON array of objects)."},
      {std::string(100, '['), "The file is not JSON."},
  };
  for (const auto& [contents, why] : files) {
    editor.dismissNotice();
    import(contents);
    ASSERT_TRUE(editor.notice()) << contents;
    EXPECT_EQ(editor.notice()->title, "Nothing Was Imported");
    EXPECT_EQ(editor.notice()->message, why + "\n\nYour letter mappings were not changed.");
    EXPECT_EQ(storedDocument(), before);
  }

  // Good records that the user defaults refuse to keep change nothing either.
  defaults.droppedKeys.insert("letterMappings.v1");
  import(R"([{"letter":"S","bundleIdentifier":"com.apple.Safari","displayName":"Safari",)"
         R"("lastKnownURL":"file:///Applications/Safari.app"}])");
  EXPECT_EQ(editor.notice()->title, "Nothing Was Imported");
  EXPECT_EQ(letters(), "N=Notes ");
}

} // namespace
} // namespace quenby
