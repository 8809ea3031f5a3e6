// The matrix operations that run once per media and frame when a renderer or the hit tester asks.
#include <ZelmarMediaLib/datatypes/GraphicsUtil.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>

#include <benchmark/benchmark.h>

using namespace ZelmarMediaLib;

namespace {

TransformMatrix typicalTransform() {
    TransformMatrix matrix = TransformMatrix::translate(320, 240, 0);
    matrix.append(TransformMatrix::rotateAroundZ(0.3));
    matrix.append(TransformMatrix::scale(1.5, 1.5, 1));
    matrix.prepend(TransformMatrix::perspectiveProjection(0.9, 16.0 / 9.0, 1, 1000));
    return matrix;
}

void BM_TransformMatrixInverse(benchmark::State& state) {
    TransformMatrix const matrix = typicalTransform();
    for (auto _ : state)
        benchmark::DoNotOptimize(matrix.inverse());
}
BENCHMARK(BM_TransformMatrixInverse);

void BM_TransformMatrixTimesPoint(benchmark::State& state) {
    TransformMatrix const matrix = typicalTransform();
    Point point(12.5, -3, 40);
    for (auto _ : state) {
        benchmark::DoNotOptimize(point);
        benchmark::DoNotOptimize(matrix * point);
    }
}
BENCHMARK(BM_TransformMatrixTimesPoint);

void BM_CalcTransformFromComponents(benchmark::State& state) {
    double scale[3] = {1.5, 1.5, 1};
    double translation[3] = {320, 240, 0};
    double rotation[3] = {0.1, 0.2, 0.3};
    double shear[2] = {0.05, 0};
    double anchor[3] = {160, 120, 0};
    for (auto _ : state) {
        benchmark::DoNotOptimize(scale);
        benchmark::DoNotOptimize(
            GraphicsUtil::calcTransformFromComponents(scale, translation, rotation, shear, anchor));
    }
}
BENCHMARK(BM_CalcTransformFromComponents);

}  // namespace
