#include <gmock/gmock.h>

#include <sstream>

#include "FakeWorld.h"
#include "engine/Engine.h"

namespace vantrel::engine {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* Folder = "C:\\Vantrel\\Settings";
constexpr const char* Log = "C:\\Vantrel\\Settings\\log.txt";
constexpr const char* List = "C:\\Vantrel\\Settings\\AllowList.txt";

class EngineDouble : public testing::Test {
 protected:
  EngineDouble() { world.PutFirstRun(); }

  // Looks once every 100 ms from `from` up to and including `to`.
  static void Look(Engine& engine, std::uint64_t from, std::uint64_t to) {
    for (std::uint64_t now = from; now <= to && !engine.Finished(); now += 100) engine.Step(now);
  }
  std::uint32_t CountedAltogether() {
    std::uint32_t sum = 0;
    for (const Kind& kind : Kinds) sum += world.Counter(kind.counter);
    return sum;
  }

  FakeWorld world;
  std::ostringstream output;
  Options options;
};

TEST_F(EngineDouble, CountsNothingWithoutItsEntryAndEndsInTime) {
  options.seconds = 2;
  Engine engine(options, world, output);
  Look(engine, 0, 1900);
  EXPECT_FALSE(engine.Finished());
  Look(engine, 2000, 2000);
  EXPECT_TRUE(engine.Finished());
  EXPECT_EQ(engine.ExitCode(), 1);
  EXPECT_EQ(CountedAltogether(), 0u);
}

TEST_F(EngineDouble, CountsAtItsRateInTurnFromTheMomentTheEntryIsThere) {
  options.rate = 50;
  Engine engine(options, world, output);
  Look(engine, 0, 5000);
  world.PutEntry(Folder);
  Look(engine, 5100, 6100);
  EXPECT_EQ(CountedAltogether(), 50u);
  for (const Kind& kind : Kinds) EXPECT_EQ(world.Counter(kind.counter), 10u) << kind.counter;
  EXPECT_EQ(engine.ExitCode(), 0);
}

TEST_F(EngineDouble, KeepsFractionsOfABlockForTheNextLook) {
  options.rate = 3;
  world.PutEntry(Folder);
  Engine engine(options, world, output);
  Look(engine, 0, 10000);
  EXPECT_EQ(CountedAltogether(), 30u);
}

TEST_F(EngineDouble, DoesNotMakeUpForALongSleep) {
  options.rate = 5;
  world.PutEntry(Folder);
  Engine engine(options, world, output);
  engine.Step(0);
  engine.Step(600000);
  EXPECT_EQ(CountedAltogether(), 5u);
}

TEST_F(EngineDouble, RestsWhileTheEntryIsGone) {
  options.rate = 10;
  world.PutEntry(Folder);
  Engine engine(options, world, output);
  Look(engine, 0, 1000);
  world.RemoveEntry();
  Look(engine, 1100, 5000);
  EXPECT_EQ(CountedAltogether(), 10u);
  world.PutEntry(Folder);
  Look(engine, 5100, 6100);
  EXPECT_EQ(CountedAltogether(), 20u);
  EXPECT_THAT(output.str(), HasSubstr("entry gone"));
}

TEST_F(EngineDouble, CountsOnlyWhatTheSettingsBlockAndSeesThemChange) {
  world.PutEntry(Folder);
  for (const Kind& kind : Kinds) world.Setting(kind.setting) = 0;
  world.Setting("Banner") = 1;
  options.rate = 10;
  Engine engine(options, world, output);
  Look(engine, 0, 1000);
  EXPECT_EQ(world.Counter("BannerAds"), 10u);
  EXPECT_EQ(CountedAltogether(), 10u);
  world.Setting("Banner") = 0;
  Look(engine, 1100, 3000);
  EXPECT_EQ(CountedAltogether(), 10u);
  EXPECT_THAT(output.str(), HasSubstr("blocking nothing"));
}

TEST_F(EngineDouble, CountsFromZeroAgainAfterAReset) {
  world.PutEntry(Folder);
  options.rate = 5;
  Engine engine(options, world, output);
  Look(engine, 0, 2000);
  EXPECT_EQ(world.Counter("Popup"), 2u);
  for (const Kind& kind : Kinds) world.Counter(kind.counter) = 0;
  Look(engine, 2100, 3000);
  EXPECT_EQ(world.Counter("Popup"), 1u);
}

TEST_F(EngineDouble, StartsAMissingCounterAtOneAndNeverMakesItsKey) {
  world.PutEntry(Folder);
  world.numbers.erase({CountersKey, "Flash"});
  options.once = true;
  Engine(options, world, output).Step(0);
  EXPECT_EQ(world.Counter("Flash"), 1u);

  world.keys.erase(CountersKey);
  world.files.clear();
  Engine(options, world, output).Step(0);
  EXPECT_EQ(world.Counter("Flash"), 1u);
  EXPECT_EQ(world.files[Log], "");
}

TEST_F(EngineDouble, HoldsACounterAtTheHighestThatIsShownAndBringsBackAHigherOne) {
  world.PutEntry(Folder);
  world.Counter("Popup") = 32766;
  world.Counter("DHTML") = 32767;
  world.Counter("Flash") = 70000;
  options.rate = 10;
  Engine engine(options, world, output);
  Look(engine, 0, 1000);
  EXPECT_EQ(world.Counter("Popup"), 32767u);
  EXPECT_EQ(world.Counter("DHTML"), 32767u);
  EXPECT_EQ(world.Counter("Flash"), 32767u);
}

TEST_F(EngineDouble, CountsPastThatWhenToldTo) {
  world.PutEntry(Folder);
  world.Counter("Popup") = 32767;
  options.once = true;
  options.limit = 0xFFFFFFFF;
  Engine(options, world, output).Step(0);
  EXPECT_EQ(world.Counter("Popup"), 32768u);
}

TEST_F(EngineDouble, EndsAfterTheTotal) {
  world.PutEntry(Folder);
  options.rate = 1000;
  options.total = 7;
  Engine engine(options, world, output);
  Look(engine, 0, 1000);
  EXPECT_TRUE(engine.Finished());
  EXPECT_EQ(CountedAltogether(), 7u);
}

TEST_F(EngineDouble, CountsEachBlockedKindOnceWhenAskedTo) {
  world.PutEntry(Folder);
  world.Setting("DHTML") = 0;
  options.once = true;
  Engine engine(options, world, output);
  engine.Step(0);
  EXPECT_TRUE(engine.Finished());
  EXPECT_EQ(world.Counter("DHTML"), 0u);
  EXPECT_EQ(CountedAltogether(), 4u);
}

TEST_F(EngineDouble, WritesALineABlockWhileTheLogIsKept) {
  world.PutEntry(Folder);
  options.once = true;
  Engine(options, world, output).Step(0);
  EXPECT_EQ(world.files[Log],
            "2006-05-04 03:02:01 blocked Popup on (any page)\r\n"
            "2006-05-04 03:02:01 blocked DHTML on (any page)\r\n"
            "2006-05-04 03:02:01 blocked WebDialog on (any page)\r\n"
            "2006-05-04 03:02:01 blocked BannerAds on (any page)\r\n"
            "2006-05-04 03:02:01 blocked Flash on (any page)\r\n");
}

TEST_F(EngineDouble, CountsWithoutALogWhenNoneIsKept) {
  world.PutEntry(Folder);
  world.Setting(KeepLogValue) = 0;
  options.once = true;
  Engine(options, world, output).Step(0);
  EXPECT_EQ(world.files[Log], "");
  EXPECT_EQ(CountedAltogether(), 5u);
}

TEST_F(EngineDouble, CountsOnWhenTheLogRefusesAndSaysSoOnce) {
  world.PutEntry(Folder);
  world.diskRefuses = true;
  options.rate = 100;
  Engine engine(options, world, output);
  Look(engine, 0, 1000);
  EXPECT_EQ(CountedAltogether(), 100u);
  const std::string told = output.str();
  EXPECT_NE(told.find("cannot be written"), std::string::npos);
  EXPECT_EQ(told.find("cannot be written"), told.rfind("cannot be written"));
}

TEST_F(EngineDouble, MakesTheLogWhenItStartsAndWhereTheFolderMoves) {
  world.PutEntry(Folder);
  for (const Kind& kind : Kinds) world.Setting(kind.setting) = 0;
  world.Setting(KeepLogValue) = 0;
  Engine engine(options, world, output);
  engine.Step(0);
  ASSERT_TRUE(world.files.contains(Log));
  EXPECT_EQ(world.files[Log], "");
  world.files[Log] = "what was there";
  engine.Step(100);
  EXPECT_EQ(world.files[Log], "what was there");
  world.PutEntry("D:\\Moved\\Settings");
  engine.Step(200);
  EXPECT_TRUE(world.files.contains("D:\\Moved\\Settings\\log.txt"));
}

TEST_F(EngineDouble, TakesAKeyWithoutItsFolderForNotYet) {
  world.keys.insert(EntryKey);
  options.once = true;
  Engine engine(options, world, output);
  engine.Step(0);
  EXPECT_EQ(CountedAltogether(), 0u);
  EXPECT_EQ(engine.ExitCode(), 1);
  EXPECT_TRUE(world.files.empty());
  world.PutEntry(Folder);
  engine.Step(100);
  EXPECT_EQ(CountedAltogether(), 5u);
}

// As the list is found while it is emptied and written anew, record by record.
TEST_F(EngineDouble, ReadsTheListAnewWhileItIsRewritten) {
  const std::string record =
      "id =1, Popup= 1 ,DHTML = 1, WebDialog =1 ,Banner = 1, Flash = 1 , friend\r\n";
  world.PutEntry(Folder);
  options.sites = {"friend"};
  options.rate = 10;
  Engine engine(options, world, output);
  for (std::size_t length = 0; length <= record.size(); ++length) {
    world.files[List] = record.substr(0, length);
    engine.Step(length * 100);
  }
  const std::uint32_t before = CountedAltogether();
  engine.Step(record.size() * 100 + 100);
  EXPECT_EQ(CountedAltogether(), before);
  world.files.erase(List);
  engine.Step(record.size() * 100 + 200);
  EXPECT_EQ(CountedAltogether(), before + 1);
}

TEST_F(EngineDouble, LetsThroughWhatTheAllowListAllowsOnASite) {
  world.PutEntry(Folder);
  world.files[List] =
      "id =1, Popup= 1 ,DHTML = 0, WebDialog =0 ,Banner = 1, Flash = 0 , friend\r\n";
  options.once = true;
  options.sites = {"Friend", "stranger"};
  Engine(options, world, output).Step(0);
  EXPECT_EQ(world.Counter("Popup"), 1u);
  EXPECT_EQ(world.Counter("DHTML"), 2u);
  EXPECT_EQ(world.Counter("BannerAds"), 1u);
  EXPECT_THAT(world.files[Log], HasSubstr("blocked DHTML on Friend\r\n"));
  EXPECT_THAT(world.files[Log], Not(HasSubstr("blocked Popup on Friend")));
}

TEST_F(EngineDouble, GoesOnWhileGDisabledIsOneUnlessToldToObey) {
  world.PutEntry(Folder);
  world.Setting(DisabledValue) = 1;
  options.once = true;
  Engine(options, world, output).Step(0);
  EXPECT_EQ(CountedAltogether(), 5u);

  options.obeyDisabled = true;
  Engine obedient(options, world, output);
  obedient.Step(0);
  EXPECT_EQ(CountedAltogether(), 5u);
  world.Setting(DisabledValue) = 0;
  obedient.Step(100);
  EXPECT_EQ(CountedAltogether(), 10u);
}

TEST_F(EngineDouble, RestsBetweenTwoLooks) {
  Engine engine(options, world, output);
  engine.Step(0);
  EXPECT_EQ(engine.Pause(), 250u);
  world.PutEntry(Folder);
  engine.Step(250);
  EXPECT_EQ(engine.Pause(), 100u);
}

}  // namespace
}  // namespace vantrel::engine
