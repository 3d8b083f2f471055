#pragma once

class QPainter;
class QRectF;

/// The signs that tell of what kind a message or a tip is, told apart by letter as well as colour.
enum class Sign { None = 0, Information = 1, Warning = 2, Error = 3, Question = 4 };

/// A disc with the sign's letter, in the largest square in the middle of `box`. None draws nothing.
void paintSign(QPainter& painter, const QRectF& box, Sign sign);
