// Complex numbers as [re, im], as far as the array designs need them.

const radians = Math.PI / 180;

export const polar = (size, degrees) => [size * Math.cos(degrees * radians), size * Math.sin(degrees * radians)];
export const add = (a, b) => [a[0] + b[0], a[1] + b[1]];
export const subtract = (a, b) => [a[0] - b[0], a[1] - b[1]];
export const multiply = (a, b) => [a[0] * b[0] - a[1] * b[1], a[0] * b[1] + a[1] * b[0]];
export const size = a => Math.hypot(a[0], a[1]);
export const angle = a => Math.atan2(a[1], a[0]) / radians;

export function divide(a, b) {
  const square = b[0] * b[0] + b[1] * b[1];
  return [(a[0] * b[0] + a[1] * b[1]) / square, (a[1] * b[0] - a[0] * b[1]) / square];
}
