#include "standin/standin.h"

extern "C" int SDL_main(int argc, char** argv);

/// What a player sees and hears of a session: the screen, or the pause sign on it, with the sounds that begin, and how
/// many frames in a row look and sound like that.
using Story = std::vector<std::pair<std::string, int>>;

struct MainLoop : StandinTest {
    const Place SHOP{992, 600}, FIELD{200, 568}, NEAR_FIELD{250, 600}, FAR_AWAY{900, 700}, TOWER{512, 352};
    const std::string MUSIC = ", fade in Tundrix_Dubstep_RMX_v1 -1 3000 0", BUILT = ", TurretConstruction",
                      SHOT = ", WaterStream", PAUSE = "PauseButton_64 480,352 544,352 544,416 480,416";

    /// Runs a session in the whole program, then closes the window in one more frame, which is still finished.
    static Story runSession(std::vector<Action> actions) {
        Story story;
        window.onFrame = [&story] {
            std::string frame = linesStarting("TitleScreen", screen.drawn).empty() ? "field" : "title";
            for (const std::string& sign : linesStarting("PauseButton", screen.drawn))
                frame = sign;
            for (const std::string& sound : std::exchange(mixer.sounds, {}))
                frame += ", " + sound;
            if (story.empty() || story.back().first != frame)
                story.emplace_back(frame, 0);
            story.back().second += 1;
        };
        actions.insert(actions.end(), {mouse(SDL_QUIT), frames(1)});
        for (const Action& action : actions)
            window.session.insert(window.session.end(), action.begin(), action.end());
        EXPECT_EQ(SDL_main(0, nullptr), 0);
        return story;
    }
};


TEST_F(MainLoop, opensAndClosesEverythingInOrder) {
    clocks.calendar = 1234567; // the seed of the dice
    EXPECT_EQ(runSession({}), (Story{{"title", 1}}));
    expectAsRecorded("startAndEnd", calls);
}


TEST_F(MainLoop, withoutAnAudioDeviceItSaysWhyAndGoesOn) {
    testing::internal::CaptureStdout();
    SDL_SetError("no audio");
    mixer.deviceAnswer = -1;
    EXPECT_EQ(runSession({frames(1)}), (Story{{"title", 2}}));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "no audio");
}


TEST_F(MainLoop, anExceptionEndsItWithOneWordAndStatus0) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(SDL_main(0, nullptr), 0) << "without a session, asking for an event raises an exception";
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "error\n");
}


TEST_F(MainLoop, aKeyOrAnyButtonLeavesTheTitleAndBeginsTheMusicOfTheGame) {
    for (const Action& action : {key(SDLK_a), click(FIELD), click(FIELD, SDL_BUTTON_MIDDLE),
                                 click(FIELD, SDL_BUTTON_RIGHT), click(FIELD, SDL_BUTTON_WHEELUP)})
        EXPECT_EQ(runSession({frames(1), action}), (Story{{"title", 1}, {"field" + MUSIC, 1}}));
}


TEST_F(MainLoop, spacePausesExceptWithTheKeyThatLeavesTheTitle) {
    EXPECT_EQ(runSession({key(SDLK_SPACE), frames(1), key(SDLK_SPACE), frames(2), key(SDLK_SPACE)}),
              (Story{{"field" + MUSIC, 1}, {PAUSE, 2}, {"field", 1}}));
}


TEST_F(MainLoop, rRestartsOnTheTitleUnpaused) {
    EXPECT_EQ(runSession({key(SDLK_a), frames(1), key(SDLK_SPACE), frames(1), key(SDLK_r), frames(1), key(SDLK_a)}),
              (Story{{"field" + MUSIC, 1}, {PAUSE, 1}, {"title", 1}, {"field" + MUSIC, 1}}));
}


TEST_F(MainLoop, aRestartKeepsTheMusic) {
    runSession({key(SDLK_a), frames(1), key(SDLK_r), frames(1)});
    EXPECT_EQ(linesStarting("play ", calls).size(), 1U);
}


TEST_F(MainLoop, rOnTheTitleStartsTheGameAndRestartsItAtOnce) {
    EXPECT_EQ(runSession({key(SDLK_r)}), (Story{{"title" + MUSIC, 1}}));
}


TEST_F(MainLoop, escapeQuits) { EXPECT_EQ(runSession({key(SDLK_ESCAPE), frames(1)}), (Story{{"field" + MUSIC, 1}})); }


TEST_F(MainLoop, theShopSellsATurretForEachChoiceOfAPlace) {
    // Two turrets take all the money. In the second wave, which was paid for the first, they empty the tower.
    // clang-format off
    const std::tuple<const char*, unsigned, std::vector<Action>> cases[] = {
        {"a click on the button is for one turret", 1, {click(SHOP), click(FIELD), click(FAR_AWAY)}},
        {"another click on it lets go", 0, {click(SHOP), click(SHOP), click(FIELD)}},
        {"a refused place lets go too", 0, {click(SHOP), click(TOWER), click(FIELD)}},
        {"only the left button reaches it", 0, {click(SHOP, SDL_BUTTON_MIDDLE), click(SHOP, SDL_BUTTON_RIGHT),
                                                click(SHOP, SDL_BUTTON_WHEELUP), click(FIELD)}},
        {"held to fire", 0, {press(FAR_AWAY), press(SHOP), release(SDL_BUTTON_LEFT), click(FIELD)}},
        {"held across a restart", 0, {press(FAR_AWAY), key(SDLK_r), press(SHOP), release(SDL_BUTTON_LEFT), click(FIELD)}},
        {"in a pause", 1, {key(SDLK_a), frames(1), key(SDLK_SPACE), click(SHOP), click(FIELD)}},
        {"between waves", 1, {key(SDLK_a), frames(2513), click(SHOP), click(FIELD)}},
        {"after a defeat", 3, {click(SHOP), click(FIELD), click(SHOP), click({300, 568}), frames(2513), click(FAR_AWAY),
                               frames(750), press(NEAR_FIELD), frames(2600), release(SDL_BUTTON_LEFT),
                               click(SHOP), click({640, 352})}}};
    // clang-format on
    for (const auto& [when, turrets, session] : cases) {
        runSession(session);
        EXPECT_EQ(linesStarting("WaterTurret", screen.drawn).size(), turrets) << when;
    }
    EXPECT_EQ(linesStarting("PressRToRestart", screen.drawn).size(), 1U) << "the last session was lost";
}


TEST_F(MainLoop, aTurretMayStandUnderAPanelAndAboveTheWindow) {
    runSession({click(SHOP), click({910, 450}), click(SHOP), click({200, 768})});
    EXPECT_EQ(linesStarting("WaterTurret", screen.drawn), (Lines{"WaterTurret_64x64 864,416 928,416 928,480 864,480",
                                                                 "WaterTurret_64x64 160,736 224,736 224,800 160,800"}))
        << "the window's top row is 768, so its cell is the one above the others";
}


TEST_F(MainLoop, aTurretNearTheMouseShowsItsRange) {
    // The turret stands at (192, 544): 39 and 40 pixels from the mouse.
    for (const auto& [mouseY, discs] : {std::pair(583, 1U), {584, 0U}}) {
        runSession({click(SHOP), click(FIELD), moveTo({192, mouseY})});
        EXPECT_EQ(linesStarting("no texture", screen.drawn).size(), discs) << mouseY;
    }
}


TEST_F(MainLoop, aHeldLeftButtonFiresOnceASecondThePauseLeftOut) {
    // clang-format off
    EXPECT_EQ(runSession({click(SHOP), click(FIELD), press(NEAR_FIELD), frames(20), key(SDLK_SPACE), frames(60),
                          key(SDLK_SPACE), frames(60)}),
              (Story{{"field" + MUSIC + BUILT + SHOT, 1}, {"field", 19}, {PAUSE, 60}, {"field", 30},
                     {"field" + SHOT, 1}, {"field", 30}}));
    // clang-format on
}


TEST_F(MainLoop, anyButtonThatIsReleasedEndsTheFire) {
    for (const Uint8 button : {SDL_BUTTON_LEFT, SDL_BUTTON_MIDDLE, SDL_BUTTON_RIGHT, SDL_BUTTON_WHEELUP})
        EXPECT_EQ(runSession({click(SHOP), click(FIELD), press(NEAR_FIELD), frames(1), release(button), frames(60)}),
                  (Story{{"field" + MUSIC + BUILT + SHOT, 1}, {"field", 61}}))
            << joined("button", int(button));
}


TEST_F(MainLoop, withAllTenChannelsBusyTheGameGoesOnInSilence) {
    mixer.onSound = [] { return -1; };
    runSession({click(SHOP), click(FIELD), press(NEAR_FIELD), frames(1)});
    EXPECT_EQ(linesStarting("VorelDefence_projectile", screen.drawn).size(), 1U);
}


TEST_F(MainLoop, aClickBetweenWavesIsTakenAtAnyMoment) {
    // The only grunt has arrived after 2,512 steps. The next wave begins 15 seconds later, and its first grunt enters
    // one second after that.
    for (const Action& before : {key(SDLK_a), press(FIELD)}) { // also while the button is held
        runSession({before, frames(2513), click(FIELD), frames(750 + 50)});
        EXPECT_EQ(linesStarting("VorelDefense_grunts", screen.drawn).size(), 1U);
    }
}


TEST_F(MainLoop, theWaitOfAFrameCountsTowardsTheNext) {
    const std::pair<Uint32, Lines> cases[] = {
        {5, {"wait 15", "wait 15"}}, {0, {"wait 20", "wait 20"}}, {20, {}}, {35, {}}};
    for (const auto& [work, waits] : cases) {
        calls.clear();
        clocks.workOfAFrame = work;
        runSession({frames(3)});
        EXPECT_EQ(linesStarting("wait", calls), waits) << "four frames of " << work << " milliseconds of work";
    }
}
