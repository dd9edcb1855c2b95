// Recordings as links: `#1.`, then the deflated text in base64url. No server ever sees what follows a #. Links and files may
// come from anyone; their contents are only passed to the program, which checks them.
const format = 1;
const mostBytes = 2_000_000; // of a recording; the program accepts no more
const bytesAtOnce = 4096; // small enough that no piece of a link unpacks to more than a few megabytes before it is counted
const linkPattern = /^#(\d{1,9})\.([\w-]*)$/;

/** Why something cannot be watched, as a sentence for the player. */
export class Refusal extends Error {}

export const tooLong = 'That is too long for a recorded game.';

export function isLink(hash: string): boolean {
    return /^#\d+\./.test(hash);
}

/** The part after the page's address. Only the last check is kept, which is enough. */
export async function packed(recording: string): Promise<string> {
    const short = recording.replaceAll(/^check .*\n(?!check |end )/gm, '');
    const deflated = new Blob([short]).stream().pipeThrough(new CompressionStream('deflate-raw'));
    const bytes = new Uint8Array(await new Response(deflated).arrayBuffer());
    const letters = Array.from(bytes, (byte) => String.fromCharCode(byte)).join('');
    return `#${format}.${btoa(letters).replaceAll('+', '-').replaceAll('/', '_').replaceAll('=', '')}`;
}

/** The recording in a link, or a refusal. */
export async function unpacked(hash: string): Promise<string> {
    const [, number, letters = ''] = linkPattern.exec(hash) ?? [];
    const recording = await inflated(letters).catch((error: unknown) => {
        if (error instanceof Refusal) throw error;
        return '';
    });
    if (number !== undefined && Number(number) !== format) throw newer(recording, `links of format ${number}`);
    if (recording === '') throw new Refusal('The link is damaged: there is no recorded game in it.');
    return checked(recording);
}

/** The recording itself, unless its format has another version. */
export function checked(recording: string): string {
    const number = /^recording (\d{1,9})\n/.exec(recording)?.[1];
    if (number !== undefined && Number(number) !== format) throw newer(recording, `recordings of format ${number}`);
    return recording;
}

function newer(recording: string, what: string): Refusal {
    const version = /^recording \d+\nprogram ([\w.+~-]{1,40})\n/.exec(recording)?.[1];
    return new Refusal(
        version === undefined
            ? `This game needs a version of Prismfall that knows ${what}.`
            : `This game needs Prismfall ${version} or later.`,
    );
}

async function inflated(letters: string): Promise<string> {
    const bytes = Uint8Array.from(atob(letters.replaceAll('-', '+').replaceAll('_', '/')), (letter) =>
        letter.charCodeAt(0),
    );
    const stream = new DecompressionStream('deflate-raw');
    const writer = stream.writable.getWriter();
    const write = async () => {
        for (let at = 0; at < bytes.length; at += bytesAtOnce) await writer.write(bytes.subarray(at, at + bytesAtOnce));
        await writer.close();
    };
    write().catch(() => undefined); // errors show up when reading
    return decoded(stream.readable);
}

async function decoded(stream: ReadableStream<Uint8Array>): Promise<string> {
    const reader = stream.getReader();
    const decoder = new TextDecoder();
    let text = '';
    let count = 0;
    for (;;) {
        const { done, value } = await reader.read();
        if (done) return text + decoder.decode();
        count += value.length;
        if (count > mostBytes) {
            void reader.cancel();
            throw new Refusal(tooLong);
        }
        text += decoder.decode(value, { stream: true });
    }
}

/** The recording in a file, or a refusal. */
export async function recordingIn(file: File): Promise<string> {
    if (file.size > mostBytes) throw new Refusal(tooLong);
    const recording = await file.text().catch(() => {
        throw new Refusal('The file cannot be read.');
    });
    return checked(recording);
}
