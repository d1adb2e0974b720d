// Call signs of the demonstration band: Q and three letters. No station in the world has one that begins with Q.

const letters = 26, all = letters ** 3;
const stride = 7919; // prime to 26: every call sign comes once, and those of one channel lie far apart in the alphabet

/** Call sign number i, 0 to 17575. */
export function callSign(i) {
  if (i >= all) throw new Error('more stations than call signs');
  let n = (i * stride) % all;
  let text = '';
  for (let k = 0; k < 3; k++) {
    text = String.fromCharCode(65 + n % letters) + text;
    n = Math.floor(n / letters);
  }
  return 'Q' + text;
}
