// What a user waits for: a run, a study, a batch, drawing, windows, the start. Needs a display,
// real or virtual; the window is painted into memory, as it is on the way to the screen.

#include "bench/bare_loop.h"
#include "clubs/frm_club_params.h"
#include "qt/club_editor_window.h"
#include "qt/main_window.h"
#include "qt/map_view.h"
#include "qt/picture_painter.h"
#include "qt/print_view_window.h"
#include "shots/fly.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <vector>

namespace {

using namespace parabolt;

/// Answers everything at once and shows nothing; time passes as fast as it is asked to.
struct Silent : MessageBoxes, FileDialog, PreferencesStore, Desktop, EventLoop, Printer {
    Timer* timer = nullptr;

    void show(std::string_view) override {}
    bool ask(std::string_view) override { return true; }
    Answer askOrCancel(std::string_view) override { return Answer::Yes; }
    void showOpen() override {}
    void showSave() override {}
    Outcome<std::optional<std::string>, Refusal> read(const std::string&, const std::string&,
                                                      const std::string&) override {
        return {std::nullopt};
    }
    Outcome<void, Refusal> write(const std::string&, const std::string&, const std::string&,
                                 const std::string&) override {
        return {};
    }
    void openHelp() override {}
    void openHelpPage(std::string_view) override {}
    void openAddress(std::string_view) override {}
    void yield() override { timer->Tick(); }
    PageSize paper() override { return {}; }
    Outcome<std::string, std::string> print(std::string_view,
                                            const std::function<void(Page&)>&) override {
        return std::string();
    }
};

/// The main form with a number of data sets, each another wind so that no curve hides another.
struct LoadedForm {
    explicit LoadedForm(int dataSets, const std::string& stateFolder = {})
        : main{{services, services, services, services, services, "/", {stateFolder}}} {
        services.timer = &main.form.Timer1;
        main.Form_Load();
        main.plot.Form_Resize({20000, 12000, 300}, false);
        main.form.optLaunch.select();
        while (main.form.Runs.count() < dataSets) {
            main.form.shot.WindSpeed = main.form.Runs.count() - 11;
            main.form.Command1.Click();
        }
    }
    Silent services;
    frmMain main;
};

/// The yardstick of a benchmark: its flights by the bare loop.
void flyBare(benchmark::State& state, const std::vector<Shot>& shots) {
    std::vector<bench::BareShot> flights;
    for (const Shot& shot : shots)
        flights.push_back(bench::bareShot(*prepare(shot)));
    for (auto _ : state)
        for (bench::BareShot& flight : flights) {
            benchmark::DoNotOptimize(flight);
            benchmark::DoNotOptimize(bench::bareCarry(flight));
        }
}

/// The defaults at each spin that a study tries on its way up.
std::vector<Shot> spinsUpTo(float highest) {
    std::vector<Shot> shots;
    Shot shot;
    for (shot.RPM = 0; shot.RPM <= highest; shot.RPM += 100)
        shots.push_back(shot);
    return shots;
}

/// The computing of a spin study and its closing run, without the pauses.
void spinStudy(benchmark::State& state) {
    LoadedForm loaded(0);
    for (auto _ : state) {
        loaded.main.form.mnuStySpin.Click();
        state.PauseTiming();
        loaded.main.form.Command2.Click();
        state.ResumeTiming();
    }
}

/// Up to the first spin that carries less than the best, and then the best once more.
void bareSpinStudy(benchmark::State& state) {
    LoadedForm loaded(0);
    loaded.main.form.mnuStySpin.Click();
    const float found = loaded.main.form.shot.RPM;
    std::vector<Shot> shots = spinsUpTo(found + 100);
    shots.push_back(shots.at(shots.size() - 2));
    flyBare(state, shots);
}

/// All flights that a spin study can make.
void longestSpinStudy(benchmark::State& state) {
    std::vector<ShotState> shots;
    for (const Shot& shot : spinsUpTo(22000))
        shots.push_back(*prepare(shot));
    for (auto _ : state)
        for (ShotState& shot : shots) {
            benchmark::DoNotOptimize(shot);
            benchmark::DoNotOptimize(SimulateCarry(shot));
        }
}

void bareLongestSpinStudy(benchmark::State& state) {
    flyBare(state, spinsUpTo(22000));
}

/// A form whose Run is the batch over the irons.
struct BatchForm : LoadedForm {
    BatchForm() : LoadedForm(0) {
        main.form.optAuto.select();
        main.form.optIron.select();
        main.form.chkBatch.setChecked(true);
    }
};

/// The computing and drawing of a batch over the irons, without the pauses.
void batch(benchmark::State& state) {
    BatchForm loaded;
    for (auto _ : state)
        loaded.main.form.Command1.Click();
}

void bareBatch(benchmark::State& state) {
    BatchForm loaded;
    loaded.main.form.Command1.Click();
    std::vector<Shot> shots;
    for (const RunRecord& flown : loaded.main.form.Runs.records().subspan(1)) {
        Shot shot; // the rest is the weather of the defaults
        shot.LaunchAngle = flown.LaunchAngle;
        shot.RPM = flown.RPM;
        shot.LaunchSpeed = flown.LaunchSpeed;
        if (fly(shot)->record.Path != flown.Path)
            return state.SkipWithError("The batch flies other shots.");
        shots.push_back(shot);
    }
    flyBare(state, shots);
}

/// DrawCurves and the painting of the plot, at a density of the screen.
void draw(benchmark::State& state) {
    LoadedForm loaded(static_cast<int>(state.range(0)));
    const auto density = static_cast<double>(state.range(1));
    QImage image(QSize(1280, 520) * density, QImage::Format_RGB32);
    image.setDevicePixelRatio(density);
    for (auto _ : state) {
        loaded.main.plot.DrawCurves();
        QPainter painter(&image);
        paintPlot(painter, loaded.main.form.screenPlot(), QRectF(0, 0, 1280, 520));
    }
    state.counters["points"] = static_cast<double>(loaded.main.form.Runs.newest().Path.size()) *
                               static_cast<double>(state.range(0));
}

/// From the click that makes the 24th data set to painted pixels of the whole window.
void pressRun(benchmark::State& state) {
    LoadedForm loaded(23);
    MainWindow window(loaded.main);
    window.resize(1920, 1030);
    window.show();
    QApplication::processEvents();
    auto* run = window.findChild<QPushButton*>("Command1");
    for (auto _ : state) {
        run->click();
        QApplication::processEvents();
        state.PauseTiming();
        loaded.main.form.Command2.Click();
        while (loaded.main.form.Runs.count() < 23)
            loaded.main.form.Command1.Click();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

/// One move of the pointer over 24 curves, to painted pixels of the whole plot; each lifts another
/// curve than the one before. The plot fills most of a screen.
void movePointer(benchmark::State& state) {
    LoadedForm loaded(24);
    MainWindow window(loaded.main);
    window.resize(1920, 1030);
    window.show();
    QApplication::processEvents();
    const RunBook& book = loaded.main.form.Runs;
    auto* plot = window.findChild<QWidget*>("Picture2");
    const CanvasScale& scale = loaded.main.form.Picture2.scale();
    int number = 1;
    const auto move = [&] {
        number = number % book.count() + 1;
        const auto& path = book[number].Path;
        const TrajectoryPoint at = path[path.size() * 3 / 4];
        const QPointF place((double{at.x} - scale.left) / scale.width * plot->width(),
                            (double{at.y} - scale.top) / scale.height * plot->height());
        QMouseEvent event(QEvent::MouseMove, place, plot->mapToGlobal(place), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(plot, &event);
        QApplication::processEvents();
    };
    move();
    for (auto _ : state)
        move();
    if (!window.findChild<QWidget*>("plotReadout")->isVisible())
        state.SkipWithError("No curve has been lifted.");
}

/// What an action costs the form when it has ended and changed something: the desk with 24 data
/// sets is taken, compared and handed to the thread that writes it. With `synced` up to the file on
/// the disk, which the form doesn't wait for.
void keepDesk(benchmark::State& state) {
    const bool synced = state.range(0) != 0;
    const auto folder = std::filesystem::temp_directory_path() / "parabolt-bench-state";
    {
        LoadedForm loaded(24, folder.string());
        for (auto _ : state) {
            loaded.main.form.shot.WindSpeed += 1;
            loaded.main.sessions.actionEnded();
            if (synced)
                loaded.main.sessions.isSafe();
        }
    }
    std::filesystem::remove_all(folder);
}

/// From a change of the shot to the painted coarse map, at a density of the screen.
void mapFirstPicture(benchmark::State& state) {
    constexpr QSize kSize(700, 560);
    const auto density = static_cast<double>(state.range(0));
    QImage image(kSize * density, QImage::Format_RGB32);
    image.setDevicePixelRatio(density);
    CarryMap map;
    Shot shot;
    for (auto _ : state) {
        shot.WindSpeed += 0.001;
        map.follow(shot, {});
        std::stop_source first;
        computeMap(map.request(), map.generation(), first.get_token(), [&](auto result) {
            map.accept(std::move(result));
            first.request_stop();
        });
        QPainter painter(&image);
        constexpr double kTextPixels = 13;
        ChartPicture(drawingOf(map), kSize, kTextPixels, kWhite, kBlack)
            .paint(painter, QRectF(QPointF(), kSize));
    }
}

void openMainForm(benchmark::State& state) {
    for (auto _ : state) {
        LoadedForm loaded(0);
        MainWindow window(loaded.main);
        window.show();
        QApplication::processEvents();
    }
}

void openClubEditor(benchmark::State& state) {
    LoadedForm loaded(0);
    Silent& all = loaded.services;
    for (auto _ : state) {
        frmClubParams editor(loaded.main.form.clubs, {all, all, all, all, "/", [] {}});
        ClubEditorWindow window(editor);
        window.show();
        QApplication::processEvents();
    }
}

void openPrintView(benchmark::State& state) {
    LoadedForm loaded(12);
    for (auto _ : state) {
        frmPrintView view(loaded.main.form.printPlot(), loaded.main.form.txtResult, loaded.services,
                          loaded.services);
        PrintViewWindow window(view);
        window.show();
        QApplication::processEvents();
    }
}

BENCHMARK(bareSpinStudy)->Unit(benchmark::kMicrosecond);
BENCHMARK(spinStudy)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareLongestSpinStudy)->Unit(benchmark::kMicrosecond);
BENCHMARK(longestSpinStudy)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareBatch)->Unit(benchmark::kMicrosecond);
BENCHMARK(batch)->Unit(benchmark::kMicrosecond);
BENCHMARK(draw)->ArgsProduct({{1, 12, 24}, {1, 2}})->Unit(benchmark::kMicrosecond);
BENCHMARK(pressRun)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(movePointer)->Unit(benchmark::kMicrosecond);
BENCHMARK(keepDesk)
    ->ArgName("synced")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
BENCHMARK(mapFirstPicture)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(openMainForm)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(openClubEditor)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(openPrintView)->Unit(benchmark::kMillisecond)->Iterations(10);

/// Resident memory of the process in MB.
double residentMegabytes() {
    std::ifstream status("/proc/self/statm");
    double size = 0;
    double resident = 0;
    status >> size >> resident;
    return resident * 4096 / 1e6;
}

/// Starts the form as the program does, splash aside, then fills it with 24 data sets.
void measureStart(std::chrono::steady_clock::time_point begin) {
    LoadedForm loaded(0);
    MainWindow window(loaded.main);
    window.resize(1920, 1030);
    window.show();
    QApplication::processEvents();
    const std::chrono::duration<double, std::milli> start =
        std::chrono::steady_clock::now() - begin;
    while (loaded.main.form.Runs.count() < 24)
        loaded.main.form.Command1.Click();
    QApplication::processEvents();
    benchmark::AddCustomContext("start_ms", std::to_string(std::lround(start.count())));
    benchmark::AddCustomContext("resident_mb", std::to_string(std::lround(residentMegabytes())));
}

} // namespace

int main(int argc, char** argv) {
    const auto begin = std::chrono::steady_clock::now();
    const QApplication application(argc, argv);
    measureStart(begin);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
