#include "variables/least_squares.h"

#include "common/run_time_error.h"

#include <cmath>
#include <utility>

namespace variables {

namespace {

// The inverse loses digits where the inputs lie close together; fitting what is left over brings them back.
constexpr int Rounds = 4;

// The matrix with the identity joined to its right.
Matrix augmented(const Matrix &square)
{
    const std::size_t n = square.rows();
    Matrix joined(n, 2 * n);
    for (std::size_t row = 0; row < n; ++row) {
        for (std::size_t column = 0; column < n; ++column)
            joined.at(row, column) = square.at(row, column);
        joined.at(row, n + row) = 1;
    }
    return joined;
}

// The row from the diagonal down with the largest absolute value in this column.
std::size_t pivotRow(const Matrix &matrix, std::size_t column)
{
    std::size_t best = column;
    for (std::size_t row = column + 1; row < matrix.rows(); ++row) {
        if (std::fabs(matrix.at(row, column)) > std::fabs(matrix.at(best, column)))
            best = row;
    }
    return best;
}

void swapRows(Matrix &matrix, std::size_t first, std::size_t second)
{
    for (std::size_t column = 0; column < matrix.columns(); ++column)
        std::swap(matrix.at(first, column), matrix.at(second, column));
}

void divideRow(Matrix &matrix, std::size_t row, double divisor)
{
    if (divisor == 0)
        throw common::RunTimeError(QStringLiteral("Division by zero"));
    for (std::size_t column = 0; column < matrix.columns(); ++column)
        matrix.at(row, column) /= divisor;
}

void eliminate(Matrix &matrix, std::size_t pivot)
{
    for (std::size_t row = 0; row < matrix.rows(); ++row) {
        const double factor = matrix.at(row, pivot);
        if (row == pivot || factor == 0)
            continue;
        for (std::size_t column = 0; column < matrix.columns(); ++column)
            matrix.at(row, column) -= factor * matrix.at(pivot, column);
    }
}

} // namespace

Matrix Transpose(const Matrix &a)
{
    Matrix result(a.columns(), a.rows());
    for (std::size_t row = 0; row < a.rows(); ++row) {
        for (std::size_t column = 0; column < a.columns(); ++column)
            result.at(column, row) = a.at(row, column);
    }
    return result;
}

Matrix Matmult(const Matrix &a, const Matrix &b)
{
    Matrix result(a.rows(), b.columns());
    for (std::size_t row = 0; row < a.rows(); ++row) {
        for (std::size_t column = 0; column < b.columns(); ++column) {
            for (std::size_t k = 0; k < a.columns(); ++k)
                result.at(row, column) += a.at(row, k) * b.at(k, column);
        }
    }
    return result;
}

Matrix Matinv(const Matrix &square)
{
    Matrix work = augmented(square);
    const std::size_t n = square.rows();
    for (std::size_t column = 0; column < n; ++column) {
        swapRows(work, column, pivotRow(work, column));
        divideRow(work, column, work.at(column, column));
        eliminate(work, column);
    }
    Matrix inverse(n, n);
    for (std::size_t row = 0; row < n; ++row) {
        for (std::size_t column = 0; column < n; ++column)
            inverse.at(row, column) = work.at(row, n + column);
    }
    return inverse;
}

Matrix Gene_Coeffs(const std::vector<double> &x, std::size_t degree)
{
    Matrix design(x.size(), degree + 1);
    for (std::size_t row = 0; row < x.size(); ++row) {
        double power = 1;
        for (std::size_t column = 0; column <= degree; ++column, power *= x[row])
            design.at(row, column) = power;
    }
    return design;
}

std::vector<double> LstSqrN(const Matrix &design, const std::vector<double> &y)
{
    const Matrix transposed = Transpose(design);
    const Matrix solver = Matmult(Matinv(Matmult(transposed, design)), transposed);
    Matrix residuals(y.size(), 1);
    for (std::size_t row = 0; row < y.size(); ++row)
        residuals.at(row, 0) = y[row];

    std::vector<double> coefficients(design.columns());
    for (int round = 0; round < Rounds; ++round) {
        const Matrix correction = Matmult(solver, residuals);
        for (std::size_t row = 0; row < coefficients.size(); ++row)
            coefficients[row] += correction.at(row, 0);
        const Matrix explained = Matmult(design, correction);
        for (std::size_t row = 0; row < y.size(); ++row)
            residuals.at(row, 0) -= explained.at(row, 0);
    }
    return coefficients;
}

} // namespace variables
