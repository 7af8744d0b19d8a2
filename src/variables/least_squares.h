#pragma once

#include <cstddef>
#include <vector>

namespace variables {

// A small dense matrix of doubles, rows and columns from 0.
class Matrix
{
public:
    Matrix(std::size_t rows, std::size_t columns) : m_rows(rows), m_columns(columns), m_values(rows * columns)
    {
    }
    std::size_t rows() const { return m_rows; }
    std::size_t columns() const { return m_columns; }
    double &at(std::size_t row, std::size_t column) { return m_values[row * m_columns + column]; }
    double at(std::size_t row, std::size_t column) const { return m_values[row * m_columns + column]; }

private:
    std::size_t m_rows;
    std::size_t m_columns;
    std::vector<double> m_values;
};

Matrix Transpose(const Matrix &a);
// The product; a has as many columns as b has rows.
Matrix Matmult(const Matrix &a, const Matrix &b);
// The inverse of a square matrix by Gauss-Jordan elimination with partial pivoting. Throws RunTimeError where
// a pivot is 0.
Matrix Matinv(const Matrix &square);

// The design matrix of a polynomial of this degree: a row 1, x, x^2 and so on for each x.
Matrix Gene_Coeffs(const std::vector<double> &x, std::size_t degree);
// The coefficients that bring design * coefficients nearest to y, by the normal equations. Throws
// RunTimeError when they have no single solution.
std::vector<double> LstSqrN(const Matrix &design, const std::vector<double> &y);

} // namespace variables
