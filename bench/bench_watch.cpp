// SPDX-License-Identifier: BSD-3-Clause
// What a watched value costs: taking a sample against a bare push into a std::vector, and painting
// twenty curves of 3,600 samples on 800 pixels against QPainter::drawPolyline through all of them.
#include "CrvServices.h"
#include "KnPointLight.h"
#include "KnSensorQueue.h"
#include "RatioReporter.h"
#include "WatchList.h"
#include "WatchPicture.h"
#include "WatchView.h"
#include "WatchedValue.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <vector>

namespace {

constexpr int curveCount = 20;
constexpr int sampleCount = 3600;
constexpr double rate = 60; // samples a second
constexpr QSize pictureSize(800, 300);

/// So many pushes into a vector before it starts anew, as large as the ring.
constexpr std::size_t pushes = WatchSeries::capacity;

/// The rival: the same pair of numbers.
void barePush(benchmark::State& state)
{
    std::vector<std::pair<double, double>> samples;
    double time = 0;
    for (auto _ : state) {
        if (samples.size() == pushes)
            samples.clear();
        time += 1 / rate;
        samples.emplace_back(time, -time);
        benchmark::DoNotOptimize(samples.data());
    }
}

void seriesAdd(benchmark::State& state)
{
    WatchSeries series;
    double time = 0;
    for (auto _ : state) {
        time += 1 / rate;
        series.add({ time, -time });
        benchmark::DoNotOptimize(&series);
    }
}

/// One write of a field and the run of its sensor, `Watched` or with a rival that only pushes what
/// the field holds.
template <bool Watched>
void writeAndSample(benchmark::State& state)
{
    const KnNodePtr node(new KnPointLight);
    auto& field = static_cast<KnPointLight*>(node.get())->intensity;
    WatchList list;
    std::vector<std::pair<double, double>> samples;
    struct Rival {
        KnSFFloat& field;
        std::vector<std::pair<double, double>>& samples;
    } rival { field, samples };
    KnFieldSensor sensor(
        [](void* data, KnSensor*) {
            auto* const pushing = static_cast<Rival*>(data);
            if (pushing->samples.size() == pushes)
                pushing->samples.clear();
            pushing->samples.emplace_back(0, pushing->field.getValue());
        },
        &rival);
    if constexpr (Watched) {
        list.setSampling(true);
        list.add(field, 0);
    } else {
        sensor.attach(&field);
    }
    KnSensorQueue& queue = KnSensorQueue::getInstance();
    float value = 1; // which the field holds
    for (auto _ : state) {
        field.setValue(value += 1);
        queue.process();
    }
    if (Watched && list.value(0).series().size() < 2)
        state.SkipWithError("nothing was sampled");
}

double curveValue(int curve, int sample)
{
    return std::sin(sample * 0.02 * (curve + 1)) + 0.2 * std::sin(sample * 1.7 + curve);
}

/// Twenty watched values with a minute of samples each.
class Curves {
public:
    Curves()
    {
        double now = 0;
        m_list.clock().setSource([&now] { return now; });
        m_list.setSampling(true);
        for (int curve = 0; curve < curveCount; ++curve) {
            m_nodes.emplace_back(new KnPointLight);
            m_list.add(light(curve).intensity, 0);
        }
        for (int sample = 0; sample < sampleCount; ++sample) {
            now = sample / rate;
            for (int curve = 0; curve < curveCount; ++curve)
                light(curve).intensity.setValue(static_cast<float>(curveValue(curve, sample)));
            KnSensorQueue::getInstance().process();
        }
        m_view.setStored(m_list.start(), m_list.clock().latest());
        m_list.show(m_view.from(), m_view.to(), std::nullopt);
    }

    const WatchList& list() const { return m_list; }
    const WatchView& view() const { return m_view; }
    WatchPicture::Settings settings() const
    {
        WatchPicture::Settings settings;
        settings.frame = QRect(QPoint(), pictureSize);
        settings.palette = QPalette(Qt::white);
        return settings;
    }

private:
    KnPointLight& light(int curve)
    {
        return *static_cast<KnPointLight*>(m_nodes[static_cast<std::size_t>(curve)].get());
    }

    std::vector<KnNodePtr> m_nodes;
    WatchList m_list;
    WatchView m_view;
};

void paintCurves(benchmark::State& state)
{
    const Curves curves;
    if (curves.list().value(0).series().size() < sampleCount)
        state.SkipWithError("samples are missing");
    QImage image(pictureSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        WatchPicture(curves.list(), curves.view(), curves.settings()).paint(painter);
        benchmark::DoNotOptimize(image.bits());
    }
}

/// The rival: nothing but the curves, on the same pixels and with the thinnest pen, which is the
/// fastest. The points are made anew for each picture, as they are where time goes on.
void paintPolylines(benchmark::State& state)
{
    const Curves curves;
    const QRectF area = WatchPicture(curves.list(), curves.view(), curves.settings()).plotArea();
    QImage image(pictureSize, QImage::Format_ARGB32_Premultiplied);
    QPolygonF line(sampleCount);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setPen(Qt::blue);
        for (int curve = 0; curve < curveCount; ++curve) {
            const WatchSeries& series = curves.list().value(curve).series();
            for (int i = 0; i < sampleCount; ++i) {
                const WatchSample& sample = series[static_cast<std::size_t>(i)];
                line[i] = QPointF(area.left() + sample.time / WatchView::minute * area.width(),
                    area.center().y() - sample.value / 3 * area.height());
            }
            painter.drawPolyline(line);
        }
        benchmark::DoNotOptimize(image.bits());
    }
}

// clazy:excludeall=non-pod-global-static the library keeps a benchmark in a static object
BENCHMARK(seriesAdd);
BENCHMARK(barePush);
BENCHMARK(writeAndSample<true>)->Name("watchedWrite");
BENCHMARK(writeAndSample<false>)->Name("pushedWrite");
BENCHMARK(paintCurves)->Unit(benchmark::kMillisecond);
BENCHMARK(paintPolylines)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    return runBenchmarks(argc, argv,
        { { "Storing a sample, times a push into a vector", "seriesAdd", "barePush" },
            { "Writing a watched field and taking the sample, times the same with a push",
                "watchedWrite", "pushedWrite" },
            { "Painting 20 curves with grid and labels, times bare polylines", "paintCurves",
                "paintPolylines" } });
}
