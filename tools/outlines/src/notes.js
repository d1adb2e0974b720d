// What stands behind the end mark of the two files. No line begins with a sign that a reader
// takes for a comment, nor with a digit.

const made = toleranceKm =>
  `Simplified to ${toleranceKm} km; joined vertices are at most 10 km apart.`;

export const region2Notes = toleranceKm => [
  'KestrelII outlines: coasts, national borders and large lakes of ITU Region 2.',
  'Coasts and borders: Natural Earth 4.1.0, 1:10m, public domain (npm world-atlas 2.0.2).',
  'Lakes: Natural Earth 1:50m, public domain (the lakes map of the R package maps 3.4.1).',
  made(toleranceKm),
];

export const statesNotes = toleranceKm => [
  'KestrelII outlines: borders between states of the US and between provinces of Canada.',
  'States: US Census Bureau, cartographic boundaries 2017, public domain (npm us-atlas 3.0.1).',
  'Provinces: Natural Earth 1:50m, public domain (the R package rnaturalearthdata 0.1.0).',
  made(toleranceKm) + ' Ends are fitted to the lines of REGION2.dat.',
];
