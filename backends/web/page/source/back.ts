// The browser's key for going back is Esc, or the close box of a dialog; where that ends the program, it leaves the page.
import type { Input } from './input';
import { EventKind } from './records';
import type { Waiting } from './waiting';
import type { Windows } from './windows';

export interface Back {
    noteEnd(): void;
}

/** Keeps an entry in the browser's history above the page's own, so that going back only takes that one away. */
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
        history.pushState('playing', '');
        // The program handles it as soon as it takes its events. What ends it later is something else.
        setTimeout(() => (isGoingBack = false), 300);
    });
    return {
        noteEnd: () => {
            hasEnded = true;
            if (isGoingBack) history.go(-2);
        },
    };
}
