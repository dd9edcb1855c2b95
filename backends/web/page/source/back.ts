// The browser's Back acts as Esc, or as a dialog's close box; where that ends the program, it leaves the page.
import type { Input } from './input';
import { EventKind } from './records';
import type { Waiting } from './waiting';
import type { Windows } from './windows';

export interface Back {
    noteEnd(): void;
}

/** Keeps an entry in the browser's history above the page's own, so that going back removes only that one. */
export function connectBack(windows: Windows, waiting: Waiting, input: Input): Back {
    let hasEnded = false;
    let isGoingBack = false;
    // A reloaded page already has its entry. The one below stands for leaving, not for a game in the address.
    if (history.state !== 'playing') {
        const address = location.href;
        history.replaceState('below', '', location.pathname + location.search);
        history.pushState('playing', '', address);
    }
    addEventListener('popstate', ({ state }) => {
        if (hasEnded) return;
        // The player has entered another address for this page.
        if (state === null) {
            history.replaceState('playing', '');
            return;
        }
        const message = document.querySelector<HTMLDialogElement>('dialog.message[open]');
        if (message) {
            message.close();
            history.pushState('playing', '');
            return;
        }
        isGoingBack = true;
        const dialog = windows.frontDialog();
        if (dialog === undefined) input.escape();
        else waiting.send(EventKind.Close, dialog);
        history.pushState('playing', '');
        // The program handles it at its next chance. If the program ends later than that, it has another reason.
        setTimeout(() => (isGoingBack = false), 300);
    });
    return {
        noteEnd: () => {
            hasEnded = true;
            if (isGoingBack) history.go(-2);
        },
    };
}
