#include "standin/standin.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

extern "C" int SDL_main(int argc, char** argv);

/// A session, frame by frame: what was drawn, and which screen that is.
struct SeenFrames {
    std::vector<Lines> drawn;
    Lines screens;

    size_t count(const std::string& picture, size_t frame) const { return linesStarting(picture, drawn[frame]).size(); }

    void takeFrame() {
        drawn.push_back(screen.drawn);
        const bool title = count("TitleScreen", drawn.size() - 1) == 1;
        const bool paused = count("PauseButton", drawn.size() - 1) == 1;
        screens.push_back(paused ? "pause" : title ? "title" : "field");
    }

    size_t firstFrameWith(size_t times, const std::string& picture) const {
        const auto hasThem = [&](const Lines& frame) { return linesStarting(picture, frame).size() == times; };
        return std::find_if(drawn.begin(), drawn.end(), hasThem) - drawn.begin();
    }
};

struct MainLoop : StandinTest {
    const Place SHOP{992, 600}, FIELD{200, 568}, BELOW_FIELD{250, 468}, NEAR_FIELD{250, 600}, FAR_AWAY{900, 700};

    /// Plays a session with the whole program, and closes the window in one more frame.
    static SeenFrames runSession(std::vector<Deed> deeds) {
        SeenFrames seen;
        deeds.insert(deeds.end(), {mouse(SDL_QUIT), frames(1)});
        for (const Deed& deed : deeds)
            window.session.insert(window.session.end(), deed.begin(), deed.end());
        window.onFrame = [&seen] { seen.takeFrame(); };
        EXPECT_EQ(SDL_main(0, nullptr), 0);
        return seen;
    }

    static size_t built() { return linesStarting("TurretConstruction", mixer.sounds).size(); }
};


TEST_F(MainLoop, opensAndClosesEverythingInOrder) {
    clocks.calendar = 1234567;
    EXPECT_EQ(runSession({}).screens, Lines{"title"}) << "the frame in which the window is closed is finished";
    expectAsRecorded("startAndEnd", calls);
    EXPECT_EQ(dice.seed, 1234567U) << "each start of the program has a ground of its own";
}


TEST_F(MainLoop, saysWhatGoesWrongAndEndsWell) {
    testing::internal::CaptureStdout();
    SDL_SetError("no audio");
    mixer.deviceAnswer = -1; // and there is no session: asking for an event raises an exception
    EXPECT_EQ(SDL_main(0, nullptr), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "no audioerror\n");
}


TEST_F(MainLoop, aKeyLeavesTheTitleAndSpacePausesFromThenOn) {
    const SeenFrames seen =
        runSession({frames(1), key(SDLK_SPACE), frames(1), key(SDLK_SPACE), frames(2), key(SDLK_SPACE)});
    EXPECT_EQ(seen.screens, (Lines{"title", "field", "pause", "pause", "field"}));
    EXPECT_EQ(seen.drawn[2].back(), "PauseButton_64 480,352 544,352 544,416 480,416");
    EXPECT_EQ(linesStarting("fade in", calls), Lines{"fade in Tundrix_Dubstep_RMX_v1 -1 3000 0"});
}


TEST_F(MainLoop, rRestartsOnTheTitleScreenUnpausedAndEscapeQuits) {
    const SeenFrames seen =
        runSession({key(SDLK_a), frames(1), key(SDLK_SPACE), frames(1), key(SDLK_r), frames(1), key(SDLK_a)});
    EXPECT_EQ(seen.screens, (Lines{"field", "pause", "title", "field"}));
    EXPECT_EQ(runSession({key(SDLK_r), frames(1)}).screens[0], "title") << "it starts the game and restarts it at once";
    EXPECT_EQ(runSession({key(SDLK_ESCAPE), frames(1)}).screens.size(), 1U);
}


TEST_F(MainLoop, anyButtonLeavesTheTitleAndOnlyTheLeftOneDoesMore) {
    EXPECT_EQ(runSession({click(SHOP, SDL_BUTTON_WHEELUP), frames(1), click(FIELD)}).screens,
              (Lines{"field", "field"}));
    EXPECT_EQ(linesStarting("fade in", calls).size(), 1U);
    EXPECT_EQ(built(), 0U) << "the wheel over the shop selects nothing";
}


TEST_F(MainLoop, theShopsButtonSelectsATurretForOneClickAndLetsGoOfIt) {
    runSession({click(SHOP), click(SHOP), click(FIELD)});
    EXPECT_EQ(built(), 0U) << "let go of";
    runSession({click(SHOP), click(FIELD), click(FAR_AWAY)});
    EXPECT_EQ(built(), 1U) << "the click that leaves the title selects; the selection ends with its turret";
}


TEST_F(MainLoop, aTurretNearTheMouseShowsItsRange) {
    // The turret stands at (192, 544); the first corner of its range is 300 pixels to the right.
    const SeenFrames seen = runSession({click(SHOP), click(FIELD), moveTo({192, 583}), frames(1), moveTo({192, 584})});
    EXPECT_EQ(seen.count("no texture 492,544", 0), 1U) << "39 pixels from the turret";
    EXPECT_EQ(seen.count("no texture", 1), 0U) << "40 pixels";
}


TEST_F(MainLoop, aHeldLeftButtonFiresOnceASecondUntilAnyButtonIsReleased) {
    const SeenFrames seen =
        runSession({click(SHOP), click(BELOW_FIELD), click(SHOP), click(FIELD), press(NEAR_FIELD), frames(20),
                    key(SDLK_SPACE), frames(60), key(SDLK_SPACE), frames(60), moveTo(FAR_AWAY), frames(60), press(SHOP),
                    moveTo(NEAR_FIELD), frames(60), release(SDL_BUTTON_WHEELUP), frames(60)});
    const std::string jet = "VorelDefence_projectile"; // each volley is two of them, one from each turret
    EXPECT_EQ(seen.firstFrameWith(4, jet), 50U + 60) << "a second after the first shot, the pause left out";
    EXPECT_EQ(seen.firstFrameWith(6, jet), 20U + 60 + 60 + 60) << "as soon as the mouse is back in range";
    EXPECT_EQ(linesStarting("WaterStream", mixer.sounds).size(), 2U + 2 + 2 + 2) << "the first volley and three more";
    EXPECT_EQ(built(), 2U) << "a press while one is held does not reach the shop";
}


TEST_F(MainLoop, aClickBetweenWavesIsTakenAtAnyMoment) {
    // The only grunt has arrived after 2,512 steps. The next wave begins 15 seconds later, and its first grunt enters a
    // second into it.
    const SeenFrames seen = runSession({key(SDLK_a), frames(2513), click(FIELD), frames(750 + 50)});
    EXPECT_EQ(seen.count("VorelDefense_grunts", seen.drawn.size() - 1), 1U);
}


TEST_F(MainLoop, theWaitOfAFrameCountsTowardsTheNext) {
    for (const auto& [work, waits] :
         {std::pair(5, Lines{"wait 15", "wait 15"}), {0, {"wait 20", "wait 20"}}, {20, {}}}) {
        calls.clear();
        clocks.workOfAFrame = work;
        runSession({frames(3)});
        EXPECT_EQ(linesStarting("wait", calls), waits) << "four frames of " << work << " milliseconds of work";
    }
}
