#pragma once

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// How brightness and colour differences become red, green and blue.
enum class Matrix { Tape, Hd, Wide };  ///< BT.601, 709, 2020

/// True when brightness goes from 0 to 255, not from 16 to 235.
bool IsFullRange(const AVFrame& frame);
/// Without a word in the stream, small pictures have the colours of tape and large ones those of HD.
Matrix MatrixOf(const AVFrame& frame);
/// Rows of 4:2:0 share their colour with the next row of their own field: two fields are two pictures.
bool HasFieldsApart(const AVFrame& frame);
/// What a decoder says of colours is what the stream holds, also where that is nonsense. Makes it sense, and names
/// the matrix, so that it is known also when the picture has been made smaller. For every picture, before all else.
void SettleColours(AVFrame& frame);
/// Writes the matrix into the picture, so that it is kept when the picture is scaled or turned.
void NameMatrix(AVFrame& frame, Matrix matrix);

}  // namespace kinalyx
