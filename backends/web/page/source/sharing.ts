// Sharing a game: with the device's share sheet, or else as a link on the clipboard, or else as a link to copy by hand; or as a
// file.
import { add, make } from './elements';
import { packed } from './links';
import type { KeptGame } from './keptGames';
import { GameEnding, GameKind } from './records';

/** Returns a sentence on what was done, or an empty one if the player was asked or has cancelled. */
export async function share(game: KeptGame): Promise<string> {
    if (!('CompressionStream' in globalThis)) return 'This browser cannot make links. The game can be saved as a file.';
    const url = location.origin + location.pathname + (await packed(game.recording));
    const device = navigator as { share?: (what: ShareData) => Promise<void>; clipboard?: Clipboard };
    if (device.share) {
        const isShared = await device.share({ title: `Prismfall: ${titleOf(game)}`, url }).then(
            () => true,
            (error: unknown) => error instanceof DOMException && error.name === 'AbortError',
        );
        if (isShared) return '';
    }
    try {
        await navigator.clipboard.writeText(url);
        return 'A link to the game is in the clipboard.';
    } catch {
        showLink(url);
        return '';
    }
}

export function canShare(): boolean {
    return 'share' in navigator;
}

function showLink(url: string): void {
    const dialog = make('dialog', 'message games');
    const label = add(dialog, make('label'));
    label.textContent = 'A link to the game ';
    const field = add(label, make('input'));
    field.readOnly = true;
    field.value = url;
    const close = add(dialog, make('button', 'plain'));
    close.textContent = 'Close';
    close.addEventListener('click', () => dialog.close());
    dialog.addEventListener('close', () => dialog.remove());
    document.body.append(dialog);
    dialog.showModal();
    field.select();
}

export function saveAsFile(game: KeptGame): void {
    const link = make('a');
    link.href = URL.createObjectURL(new Blob([game.recording], { type: 'application/octet-stream' }));
    link.download = `${dayAndTime(game.when)} ${titleOf(game).replaceAll(',', '')}.prismfall`;
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

export function titleOf({ kind, ending, puzzle, score, level }: KeptGame): string {
    const isArcade = kind === GameKind.Arcade;
    const endings = {
        [GameEnding.Lost]: isArcade ? '' : ', failed',
        [GameEnding.Solved]: ', solved',
        [GameEnding.Left]: ', left',
    };
    return (isArcade ? `Arcade, ${score} points, level ${level}` : `Puzzle ${puzzle}`) + endings[ending];
}

/** For file names: in UTC, so that they sort by age in any time zone. */
function dayAndTime(when: number): string {
    return new Date(when).toISOString().slice(0, 19).replace('T', ' ').replaceAll(':', '.');
}
