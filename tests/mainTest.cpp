#include "standin/screen.h"
#include "standin/world.h"

#include <algorithm>
#include <gtest/gtest.h>

using standin::Words;

extern "C" int SDL_main(int argc, char** argv);

namespace {

SDL_Event key(SDLKey sym) {
    SDL_Event event{};
    event.type = SDL_KEYDOWN;
    event.key.keysym.sym = sym;
    return event;
}

/// A button pressed at a place of the window, y downwards as SDL counts.
SDL_Event press(Uint16 x, Uint16 y, Uint8 button = SDL_BUTTON_LEFT) {
    SDL_Event event{};
    event.button = {SDL_MOUSEBUTTONDOWN, 0, button, SDL_PRESSED, x, y};
    return event;
}

SDL_Event release(Uint8 button = SDL_BUTTON_LEFT) {
    SDL_Event event{};
    event.button = {SDL_MOUSEBUTTONUP, 0, button, SDL_RELEASED, 0, 0};
    return event;
}

SDL_Event move(Uint16 x, Uint16 y) {
    SDL_Event event{};
    event.motion = {SDL_MOUSEMOTION, 0, 0, x, y, 0, 0};
    return event;
}

const SDL_Event buttonOfTheShop = press(992, 768 - 600);

/// Plays the frames of events, and one more in which the window is closed. For each frame: T on the title screen, f
/// for the field, P for the pause sign over it, and the number of jets in flight.
std::string play(const std::vector<std::vector<SDL_Event>>& frames) {
    std::string seen;
    standin::session = frames;
    standin::onFrame = [&seen](size_t) {
        char sign = 'f';
        int jets = 0;
        for (const std::string& line : standin::drawing()) {
            sign = line.rfind("Title", 0) == 0 ? 'T' : line.rfind("Pause", 0) == 0 ? 'P' : sign;
            jets += line.rfind("VorelDefence_projectile", 0) == 0;
        }
        seen += sign + (jets > 0 ? std::to_string(jets) : "");
    };
    EXPECT_EQ(SDL_main(0, nullptr), 0);
    return seen;
}

Words callsWith(const std::string& start) {
    Words found;
    std::copy_if(standin::calls.begin(), standin::calls.end(), std::back_inserter(found),
                 [&](const std::string& call) { return call.rfind(start, 0) == 0; });
    return found;
}

} // namespace


TEST(MainLoop, startsAndShutsDownInOrder) {
    EXPECT_EQ(play({}), "T") << "a frame in progress is finished";
    Words expected{"init 1",      "caption Vorel Defense INC.",  "open audio 44100 32784 2 1024",
                   "channels 10", "load Tundrix_Dubstep_RMX_v1", "video 1024 768 32 1"};
    for (const char* sound :
         {"EnnemyExplosion", "EnnemyGrunt", "TurretConstruction", "WaterStream", "WaterSplash", "CashRegister",
          "CoinSound", "PourWater", "VorelDefense_TitleScreen", "VorelDefense_GameOver", "VorelDefense_WellDone"})
        expected.push_back(std::string("load ") + sound);
    expected.insert(expected.end(), {"play VorelDefense_TitleScreen -1", "music volume 12"});
    for (int channel = 0; channel < 10; ++channel)
        expected.push_back("volume " + std::to_string(channel) + " 10");
    expected.insert(expected.end(), {"ortho 0 1024 0 768", "blend 1 1", "delay 20"});
    for (const char* sound : {"EnnemyExplosion", "EnnemyGrunt", "WaterSplash", "WaterStream", "TurretConstruction",
                              "CashRegister", "CoinSound", "PourWater", "VorelDefense_TitleScreen",
                              "VorelDefense_GameOver", "VorelDefense_WellDone", "Tundrix_Dubstep_RMX_v1"})
        expected.push_back(std::string("free ") + sound);
    expected.insert(expected.end(), {"close audio", "quit"});
    EXPECT_EQ(standin::calls, expected);
}


TEST(MainLoop, keysLeaveTheTitlePauseRestartAndQuit) {
    EXPECT_EQ(play({{}, {key(SDLK_a)}, {key(SDLK_SPACE)}, {}, {key(SDLK_SPACE)}, {key(SDLK_SPACE)}, {key(SDLK_r)}}),
              "TfPPfPTT");
    EXPECT_EQ(callsWith("fade"), Words{"fade in Tundrix_Dubstep_RMX_v1 -1 3000"});
}


TEST(MainLoop, theKeyThatLeavesTheTitleNeverPauses) {
    EXPECT_EQ(
        play({{key(SDLK_SPACE)}, {key(SDLK_r)}, {key(SDLK_r)}, {key(SDLK_a), key(SDLK_SPACE)}, {key(SDLK_ESCAPE)}}),
        "fTTff");
    EXPECT_EQ(callsWith("fade").size(), 3U);
}


TEST(MainLoop, anyButtonLeavesTheTitleAndTheLeftOneAlsoActs) {
    EXPECT_EQ(
        play({{press(1, 1, SDL_BUTTON_WHEELUP), release(SDL_BUTTON_WHEELUP)}, {buttonOfTheShop}, {press(200, 200)}}),
        "ffff");
    EXPECT_EQ(callsWith("fade").size(), 1U);
    EXPECT_EQ(standin::played, Words{"TurretConstruction@-1"});
}


TEST(MainLoop, holdingTheLeftButtonFiresUntilAnyButtonIsReleased) {
    // Two turrets are placed, one attempt a selection; the third click fires, and a press meanwhile changes nothing.
    std::vector<std::vector<SDL_Event>> frames{
        {buttonOfTheShop, press(200, 200), buttonOfTheShop, press(300, 200)}, {press(250, 300)}, {buttonOfTheShop}};
    frames.resize(50);
    frames.insert(frames.end(), {{move(900, 700)}, {}, {move(250, 300)}, {release(SDL_BUTTON_RIGHT)}});
    frames.resize(110);
    const std::string seen = play(frames);
    EXPECT_EQ(seen.substr(0, 5), "ff2f2");
    EXPECT_EQ(std::count(standin::played.begin(), standin::played.end(), "TurretConstruction@-1"), 2);
    EXPECT_EQ(std::count(standin::played.begin(), standin::played.end(), "WaterStream@-1"), 4) << seen;
}


TEST(MainLoop, selectingTwiceLetsGoAndAPausedClickStillPlaces) {
    EXPECT_EQ(play({{buttonOfTheShop, buttonOfTheShop, press(200, 200), release()},
                    {key(SDLK_SPACE)},
                    {buttonOfTheShop, press(200, 200)}}),
              "fPPP");
    EXPECT_EQ(standin::played, Words{"TurretConstruction@-1"}) << "nothing fires while paused";
}


TEST(MainLoop, aClickBetweenWavesIsTakenAtAnyMoment) {
    // The only grunt enters on the left and has arrived after 2,512 steps; the next three follow 15 seconds later.
    standin::nanoseconds = standin::fromLeft;
    std::vector<std::vector<SDL_Event>> frames(3450);
    frames[0] = {key(SDLK_a)};
    frames[2520] = {press(500, 500), release()};
    play(frames);
    const Words lines = standin::drawing();
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) { return line.rfind("VorelDefense_grunts", 0) == 0; }),
              3);
}


TEST(MainLoop, theWaitOfAFrameCountsTowardsTheNext) {
    const struct {
        Uint32 work;
        Words delays;
    } cases[] = {
        {5, {"delay 15", "delay 15", "delay 15"}}, {0, {"delay 20", "delay 20", "delay 20"}}, {20, {}}, {35, {}}};
    for (const auto& [work, delays] : cases) {
        standin::calls.clear();
        standin::work = [work = work](size_t) { return work; };
        play(std::vector<std::vector<SDL_Event>>(4));
        EXPECT_EQ(callsWith("delay"), delays) << work;
    }
}
