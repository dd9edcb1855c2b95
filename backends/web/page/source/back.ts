// The browser's key for going back is Esc, or the close box of a dialog; where that ends the program, it leaves the page.
import type { Input } from './input';
import { EventKind } from './records';
import type { Waiting } from './waiting';
import type { Windows } from './windows';

export interface Back {
    noteEnd(): void;
}

/** Puts an entry into the browser's history that going back can take away, and puts it back each time. */
export function connectBack(windows: Windows, waiting: Waiting, input: Input): Back {
    let hasEnded = false;
    let isGoingBack = false;
    // A reloaded page has its entry already.
    if (history.state !== 'playing') history.pushState('playing', '');
    addEventListener('popstate', () => {
        if (hasEnded) return;
        isGoingBack = true;
        const dialog = windows.frontDialog();
        if (dialog === undefined) input.escape();
        else waiting.send(EventKind.Close, dialog);
        // Esc is handled when the program next takes its events; if it has not ended by then, it is being played on.
        setTimeout(() => {
            isGoingBack = false;
            if (!hasEnded) history.pushState('playing', '');
        }, 300);
    });
    return {
        noteEnd: () => {
            hasEnded = true;
            if (isGoingBack) history.back();
        },
    };
}
