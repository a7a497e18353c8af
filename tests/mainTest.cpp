#include "standin/standin.h"

#include <numeric>

using standin::Words, standin::only;

extern "C" int SDL_main(int argc, char** argv);

/// Plays the frames of a session, each ended by a space, and one more in which the window is closed. For each frame: T
/// on the title screen, f for the field, P for the pause sign over it, and the number of jets in flight.
static std::string play(const std::string& frames) {
    std::string seen;
    standin::clear(), standin::session = frames + "Q ";
    standin::onFrame = [&seen] {
        seen += !only(standin::drawn, "Pause").empty() ? "P" : !only(standin::drawn, "Title").empty() ? "T" : "f";
        if (const size_t jets = only(standin::drawn, "VorelDefence_projectile").size())
            seen += std::to_string(jets);
    };
    EXPECT_EQ(SDL_main(0, nullptr), 0);
    return seen;
}

TEST(MainLoop, startsAndShutsDownInOrder) {
    EXPECT_EQ(play(""), "T") << "a frame in progress is finished";
    const std::string asked = std::accumulate(standin::calls.begin(), standin::calls.end(), std::string(),
                                              [](const auto& all, const auto& call) { return all + call + "; "; });
    EXPECT_EQ(
        asked,
        "init 1; caption Vorel Defense INC.; audio 44100 32784 2 1024; channels 10; load Tundrix_Dubstep_RMX_v1; "
        "video 1024 768 32 2; load EnnemyExplosion; load EnnemyGrunt; load TurretConstruction; load WaterStream; "
        "load WaterSplash; load CashRegister; load CoinSound; load PourWater; load VorelDefense_TitleScreen; "
        "load VorelDefense_GameOver; load VorelDefense_WellDone; play VorelDefense_TitleScreen -1; music volume 12; "
        "volume 0 10; volume 1 10; volume 2 10; volume 3 10; volume 4 10; volume 5 10; volume 6 10; volume 7 10; "
        "volume 8 10; volume 9 10; ortho 0 1024 0 768; blend 1 1; delay 20; free EnnemyExplosion; free EnnemyGrunt; "
        "free WaterSplash; free WaterStream; free TurretConstruction; free CashRegister; free CoinSound; "
        "free PourWater; free VorelDefense_TitleScreen; free VorelDefense_GameOver; free VorelDefense_WellDone; "
        "free Tundrix_Dubstep_RMX_v1; close audio; quit; ");
}


TEST(MainLoop, saysInAWordWhatGoesWrongAndEndsWellAllTheSame) {
    SDL_SetError("no audio"), standin::audio = -1;
    testing::internal::CaptureStdout();
    EXPECT_EQ(play(" "), "TT") << "a silent game goes on";
    standin::session.clear(), standin::audio = 0; // asking for the next event now raises an exception
    EXPECT_EQ(SDL_main(0, nullptr), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "no audioerror\n");
}


TEST(MainLoop, keysAndButtonsLeaveTheTitlePauseRestartAndQuit) {
    // What is seen, how often the music of the game starts, and how many turrets are built.
    const std::tuple<const char*, const char*, size_t, size_t> sessions[] = {{" a _  _ _ r ", "TfPPfPTT", 1, 0},
                                                                             {"_ r r a_ E ", "fTTff", 3, 0},
                                                                             {"Wu 1u S2 ", "ffff", 1, 1},
                                                                             {"SS1u _ S2 _ ", "fPPff", 1, 1}};
    for (const auto& [frames, seen, fades, built] : sessions) {
        EXPECT_EQ(play(frames), seen);
        EXPECT_EQ(only(standin::calls, "fade in Tundrix_Dubstep_RMX_v1 -1 3000").size(), fades) << frames;
        EXPECT_EQ(only(standin::played, "TurretConstruction@-1").size(), built) << frames;
    }
}


TEST(MainLoop, holdingTheLeftButtonFiresOnceASecondUntilAnyButtonIsReleased) {
    // The selection ends with its turret; the next click fires, and presses meanwhile change nothing but the aim.
    const std::string idle(60, ' ');
    const std::string seen = play("S1 2 S2 _ " + idle + "_ " + idle + "f " + idle + "n u " + idle);
    EXPECT_EQ(seen.find("f2"), 1U + 2 * (1 + 62 + 48)) << "50 steps after the first shot, the pause left out";
    EXPECT_EQ(seen.find("f3"), 1U + 2 * (3 + 61 + 61 + 60)) << "as soon as the mouse is back in range";
    EXPECT_EQ(standin::played, (Words{"TurretConstruction@-1", "WaterStream@-1", "WaterStream@-1", "WaterStream@-1"}));
}


TEST(MainLoop, aClickBetweenWavesIsTakenAtAnyMoment) {
    // The only grunt enters on the left and has arrived after 2,512 steps; the next three follow 15 seconds later.
    standin::nanoseconds = standin::fromLeft;
    play("a" + std::string(2520, ' ') + "2u" + std::string(929, ' '));
    EXPECT_EQ(only(standin::drawn, "VorelDefense_grunts").size(), 3U);
}


TEST(MainLoop, theWaitOfAFrameCountsTowardsTheNext) {
    for (const auto& [work, delays] : {std::pair(5, 2U), {0, 2U}, {20, 0U}, {35, 0U}}) {
        standin::work = work;
        play("   ");
        EXPECT_EQ(only(standin::calls, "delay"), Words(delays, "delay " + std::to_string(20 - work)));
    }
}
